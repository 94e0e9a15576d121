#include "dict/phonetic_key.h"

#include <array>

namespace wordhawk {
namespace {

/// Sound classes of the letters A to Z; 0 is silent. Codes 13 to 64 repeat them twice from below.
constexpr std::string_view kLetterClasses = "01230120022455012623010202";
constexpr unsigned kFirstClassedCode = 13;
constexpr std::size_t kClassedCodes = 3 * kLetterClasses.size();

constexpr std::array<unsigned char, 256> MakeClasses() {
    std::array<unsigned char, 256> classes{};
    for (std::size_t i = 0; i < kClassedCodes; ++i) {
        classes[kFirstClassedCode + i] =
            static_cast<unsigned char>(kLetterClasses[i % kLetterClasses.size()] - '0');
    }
    return classes;
}

constexpr std::array<unsigned char, 256> kClassOfCode = MakeClasses();
constexpr int kKeyDigits = 5;

/// Key of `length` characters, the i-th of which has the upper-cased code `code_at(i)`.
template <class CodeAt>
std::int32_t KeyOfCodes(std::size_t length, CodeAt code_at) {
    if (length == 0) return 0;
    const unsigned first = code_at(0);
    std::int32_t key = static_cast<std::int32_t>(first);
    int digits = first < 10 ? 1 : first < 100 ? 2 : 3;
    // The digit before counts even where it belongs to the first character's code.
    unsigned last = first % 10;
    for (std::size_t i = 1; i < length && digits < kKeyDigits; ++i) {
        const unsigned sound = kClassOfCode[code_at(i)];
        if (sound == 0 || sound == last) continue;
        key = key * 10 + static_cast<std::int32_t>(sound);
        last = sound;
        ++digits;
    }
    for (; digits < kKeyDigits; ++digits) key *= 10;
    return key;
}

constexpr std::wstring_view kNoLetterFile = L"_noncase_.dic";
constexpr std::wstring_view kOutsidePageFile = L"_dbcs_.dic";
constexpr std::wstring_view kLetterFileEnd = L"_.dic";

}  // namespace

std::int32_t GetPhoneticKey(std::wstring_view word, const AnsiCodePage& page) {
    return KeyOfCodes(word.size(), [&](std::size_t i) { return page.ToByte(UpperChar(word[i])); });
}

std::int32_t GetPhoneticKeyOfBytes(std::string_view word, const AnsiCodePage& page) {
    return KeyOfCodes(word.size(), [&](std::size_t i) {
        return page.UpperByte(static_cast<unsigned char>(word[i]));
    });
}

bool IsFileNameLetter(unsigned code) {
    return (code >= 65 && code <= 90) || (code >= 97 && code <= 122) || code == 159 ||
           (code >= 192 && code <= 214) || (code >= 216 && code <= 246) ||
           (code >= 248 && code <= 255);
}

bool IsOutsideSingleBytes(wchar_t c, const AnsiCodePage& page) {
    return c > 255 && page.ToByteOrNone(c) < 0;
}

std::wstring GetDictionaryFileName(std::wstring_view word, const AnsiCodePage& page) {
    if (word.empty()) return std::wstring(kNoLetterFile);
    if (IsOutsideSingleBytes(word[0], page)) return std::wstring(kOutsidePageFile);
    if (!IsFileNameLetter(page.ToByte(word[0]))) return std::wstring(kNoLetterFile);
    const wchar_t second = word.size() > 1 ? word[1] : word[0];
    std::wstring name(1, word[0]);
    if (IsFileNameLetter(page.ToByte(second))) name += second;
    return name.append(kLetterFileEnd);
}

}  // namespace wordhawk
