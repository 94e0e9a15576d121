#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wordhawk {

/// Words with a small number each, as lines "word,number" (CR LF) in ascending order of their
/// bytes: looked up where they lie, so that a list of a million words costs nothing but its bytes.
class SortedWords {
  public:
    SortedWords() = default;
    explicit SortedWords(std::string bytes) : bytes_(std::move(bytes)) {}

    /// The number of a word, or nothing where the list lacks it. A line that is broken is skipped:
    /// at worst a word is not found.
    std::optional<unsigned> ValueOf(std::string_view word) const;

    bool IsEmpty() const { return bytes_.empty(); }

    /// The bytes of such a list. `words` are different from each other, in any order, and hold no
    /// comma and no line end.
    static std::string Make(std::vector<std::pair<std::string, unsigned>> words);

  private:
    std::string bytes_;
};

}  // namespace wordhawk
