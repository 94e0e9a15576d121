#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

enum class LineEnds { CrLf, Lf, Cr };

/// The text with every line end of one kind.
std::wstring WithLineEnds(std::wstring_view text, LineEnds line_ends);

/// The line ends of a text as it was read. An editor knows one kind only; this gives each line its
/// own kind back.
class LineEndMemory {
  public:
    /// Of a text without lines.
    LineEndMemory() = default;
    explicit LineEndMemory(std::wstring_view text);
    /// Of a text whose lines all end in one way.
    explicit LineEndMemory(LineEnds all) : most_used_(all) {}

    bool Mixed() const { return !ends_.empty(); }
    /// The kind that the text used most; CR LF for a text without line ends.
    LineEnds MostUsed() const { return most_used_; }
    /// `edited`, whose line ends may be of any kind, with each line that was in the text ending as
    /// it did there, and each other line as most do. Lines are matched from both ends, then by
    /// those that occur only once, then in their order; linear in time but for sorting.
    std::wstring Restore(std::wstring_view edited) const;

  private:
    LineEnds most_used_ = LineEnds::CrLf;
    /// Of a text that mixes them, else empty: its lines, each ended by a CR, and how they ended.
    std::wstring lines_;
    std::vector<LineEnds> ends_;
};

}  // namespace wordhawk
