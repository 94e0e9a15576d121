#pragma once

#include <string>
#include <string_view>

/// RTF's characters beyond code pages: \u with a number, followed by its form for readers without
/// Unicode.
namespace wordhawk {

/// The UTF-16 units that the number of a \u stands for: one unit as a signed number, or, from some
/// writers, a whole code point. Empty for other numbers.
std::wstring TextOfUnicodeWord(int number);

/// Passes over the forms for readers without Unicode. Each control word, symbol and byte of them is
/// one character; a group's begin or end cuts a form short.
class RtfFallback {
  public:
    void Begin(int characters) { left_ = characters; }
    void End() { left_ = 0; }

    /// Whether the word or symbol just read belongs to such a form.
    bool TakesOne() {
        if (left_ == 0) return false;
        --left_;
        return true;
    }
    /// What is left of bytes just read.
    std::string_view Behind(std::string_view bytes);

  private:
    int left_ = 0;  // characters; never negative
};

}  // namespace wordhawk
