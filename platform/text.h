#pragma once

#include "platform/unit_table.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace wordhawk {

// Text in the program is std::wstring holding UTF-16 code units on every platform; on Linux each
// unit merely sits in a wider slot. Only this header and its implementation know the difference.

/// Decodes UTF-8; every malformed byte sequence becomes one U+FFFD. Never fails.
std::wstring FromUtf8(std::string_view bytes);

/// Appends the decoded form of `bytes` to `out` (the streaming form of FromUtf8).
void AppendFromUtf8(std::string_view bytes, std::wstring& out);

/// Encodes as UTF-8; a lone surrogate becomes U+FFFD.
std::string ToUtf8(std::wstring_view text);

/// Whether `bytes` is well-formed UTF-8 (pure ASCII included).
bool IsUtf8(std::string_view bytes);

bool IsAscii(std::string_view bytes);

/// Number of code points in `text`: a surrogate pair counts once, a lone surrogate once.
std::size_t CountCharacters(std::wstring_view text);

/// One-to-one case mapping of one unit, the same on all platforms and independent of the user's
/// locale. MICRO SIGN, DOTLESS I, LONG S and F WITH HOOK have no upper form here, and CAPITAL I
/// WITH DOT no lower form. Surrogates map to themselves.
wchar_t LowerChar(wchar_t c);
wchar_t UpperChar(wchar_t c);
std::wstring Lower(std::wstring_view text);
std::wstring Upper(std::wstring_view text);

/// Equality without regard to case, under LowerChar.
bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b);

/// `text` without leading and trailing spaces (U+0020 only).
std::wstring_view Trim(std::wstring_view text);

/// Reads a whole decimal number, blanks at both ends allowed. Anything else, or a value outside
/// 32 bits, is 0: this is how numbers in settings and dictionary lines are read.
std::int32_t NumberOrZero(std::wstring_view text);

/// A single-byte code page by its Windows number: 874 and 1250 to 1258, in which dictionaries are
/// kept; ISO 8859 (28591 to 28605) and KOI8 (20866, 21866), in which others' lists may be. Bytes
/// that the page leaves undefined stand for the code point of the same number; a character that the
/// page cannot hold becomes "?".
class AnsiCodePage {
  public:
    /// Tables of `number`; an unknown number gives 1252. The object lives as long as the process.
    static const AnsiCodePage& Get(int number);

    int Number() const { return number_; }
    wchar_t ToUnicode(unsigned char byte) const { return to_unicode_[byte]; }
    /// The byte of `c`, or -1 when the page has none.
    int ToByteOrNone(wchar_t c) const {
        const auto code = static_cast<std::uint32_t>(c);
        return code == static_cast<std::uint16_t>(c) ? to_byte_[c] : -1;
    }
    unsigned char ToByte(wchar_t c) const {
        const int byte = ToByteOrNone(c);
        return byte < 0 ? static_cast<unsigned char>('?') : static_cast<unsigned char>(byte);
    }
    /// Case mapping within the page: the byte of LowerChar / UpperChar, "?" when that is outside.
    unsigned char LowerByte(unsigned char byte) const { return lower_[byte]; }
    unsigned char UpperByte(unsigned char byte) const { return upper_[byte]; }

    std::wstring Decode(std::string_view bytes) const;
    std::string Encode(std::wstring_view text) const;

    explicit AnsiCodePage(int number);

  private:
    int number_;
    std::array<wchar_t, 256> to_unicode_;
    UnitTable<std::int16_t> to_byte_{-1};
    std::array<unsigned char, 256> lower_;
    std::array<unsigned char, 256> upper_;
};

}  // namespace wordhawk
