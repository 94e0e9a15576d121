#pragma once

#include <cstdint>
#include <string_view>

namespace wordhawk {

/// Line and column of a place in a text, found by walking over the text before it. Both count from
/// 1; the column counts characters, a surrogate pair as one. CR, LF and CR LF each end a line.
class TextPosition {
  public:
    void Advance(std::wstring_view text) {
        for (const wchar_t c : text) {
            const auto unit = static_cast<std::uint16_t>(c);
            if (unit == '\n') {
                if (!after_cr_) ++line_;
                column_ = 1;
            } else if (unit == '\r') {
                ++line_;
                column_ = 1;
            } else {
                const bool pair_end = after_high_ && (unit & 0xFC00) == 0xDC00;
                column_ += !pair_end;
            }
            after_cr_ = unit == '\r';
            after_high_ = (unit & 0xFC00) == 0xD800;
        }
    }

    std::uint64_t Line() const { return line_; }
    std::uint64_t Column() const { return column_; }

  private:
    std::uint64_t line_ = 1;
    std::uint64_t column_ = 1;
    bool after_cr_ = false;
    bool after_high_ = false;
};

}  // namespace wordhawk
