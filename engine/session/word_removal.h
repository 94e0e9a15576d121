#pragma once

#include "dict/dictionary_store.h"
#include "platform/ui_services.h"

#include <optional>
#include <string>
#include <string_view>

namespace wordhawk {

/// A word that was taken out of a dictionary.
struct RemovedWord {
    std::wstring word;
    Path file;
    bool from_main = false;
};

/// Takes a suggestion that nobody wants to see again out of its dictionary: out of the user's own
/// ones at once, out of the language's main one only after a question. The last one can be put
/// back.
class WordRemoval {
  public:
    WordRemoval(DictionaryStore& dictionaries, UiServices& ui)
        : dictionaries_(dictionaries), ui_(ui) {}

    enum class Outcome { Removed, Declined, NotFound };
    /// The custom dictionaries are looked at before the main one. An error: a dictionary cannot be
    /// read or written, and is as it was.
    Result<Outcome> Remove(std::wstring_view word);

    /// What PutBack would put back.
    const std::optional<RemovedWord>& Last() const { return last_; }
    Result<void> PutBack();

  private:
    Result<bool> RemoveFrom(const Path& file, std::wstring_view word);
    bool Confirmed(std::wstring_view word) const;

    DictionaryStore& dictionaries_;
    UiServices& ui_;
    std::optional<RemovedWord> last_;
};

}  // namespace wordhawk
