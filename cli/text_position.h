#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace wordhawk {

/// Line and column of a place in a text, found by walking over the text before it. Both count from
/// 1; the column counts characters, a surrogate pair as one. CR, LF and CR LF each end a line.
class TextPosition {
  public:
    void Advance(std::wstring_view text) {
        if (text.empty()) return;
        line_ += CountLineEnds(text);
        const std::size_t last_end = text.find_last_of(L"\r\n");
        if (last_end != std::wstring_view::npos) {
            column_ = 1;
            after_high_ = false;
        }
        for (const wchar_t c : text.substr(last_end + 1)) {
            const auto unit = static_cast<std::uint16_t>(c);
            column_ += !(after_high_ && (unit & 0xFC00) == 0xDC00);
            after_high_ = (unit & 0xFC00) == 0xD800;
        }
        after_cr_ = text.back() == L'\r';
    }

    /// Advances over `text` by what an own count of it, begun anew, came to.
    void AdvanceCounted(std::wstring_view text, const TextPosition& counted) {
        if (text.empty()) return;
        const auto first = static_cast<std::uint16_t>(text.front());
        if (counted.line_ == 1) {
            const bool pair_end = after_high_ && (first & 0xFC00) == 0xDC00;
            column_ += counted.column_ - 1 - pair_end;
        } else {
            line_ += counted.line_ - 1 - (after_cr_ && first == '\n');
            column_ = counted.column_;
        }
        after_cr_ = counted.after_cr_;
        after_high_ = counted.after_high_;
    }

    std::uint64_t Line() const { return line_; }
    std::uint64_t Column() const { return column_; }

  private:
    /// The one loop that goes over all of a text; free of branches, for the compiler's sake.
    std::size_t CountLineEnds(std::wstring_view text) const {
        std::size_t ends = text[0] == L'\r' || (text[0] == L'\n' && !after_cr_) ? 1 : 0;
        for (std::size_t i = 1; i < text.size(); ++i) {
            ends += static_cast<std::size_t>(static_cast<unsigned>(text[i] == L'\r') |
                                             (static_cast<unsigned>(text[i] == L'\n') &
                                              static_cast<unsigned>(text[i - 1] != L'\r')));
        }
        return ends;
    }

    std::uint64_t line_ = 1;
    std::uint64_t column_ = 1;
    bool after_cr_ = false;
    bool after_high_ = false;
};

}  // namespace wordhawk
