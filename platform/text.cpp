#include "platform/text.h"

#include "platform/case_mapping.h"
#include "platform/code_page_table.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <map>
#include <memory>
#include <mutex>

namespace wordhawk {
namespace {

constexpr wchar_t kReplacement = 0xFFFD;

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }
bool IsHighSurrogate(wchar_t c) { return (c & ~wchar_t{0x3FF}) == 0xD800; }
bool IsLowSurrogate(wchar_t c) { return (c & ~wchar_t{0x3FF}) == 0xDC00; }

struct Sequence {
    std::uint32_t code_point;
    std::size_t length;  // bytes consumed, at least 1
    bool valid;
};

/// Reads the sequence at the start of `bytes` (not empty). A malformed one has the length of its
/// longest well-formed beginning, so that it becomes one replacement character.
Sequence ReadSequence(std::string_view bytes) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return {lead, 1, true};
    std::size_t needed;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    std::uint32_t code_point;
    if (lead >= 0xC2 && lead <= 0xDF) {
        needed = 1;
        code_point = lead & 0x1Fu;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        needed = 2;
        code_point = lead & 0x0Fu;
        if (lead == 0xE0) low = 0xA0;
        if (lead == 0xED) high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        needed = 3;
        code_point = lead & 0x07u;
        if (lead == 0xF0) low = 0x90;
        if (lead == 0xF4) high = 0x8F;
    } else {
        return {kReplacement, 1, false};
    }
    for (std::size_t i = 1; i <= needed; ++i) {
        if (i >= bytes.size() || !IsContinuation(byte(i)) || byte(i) < low || byte(i) > high) {
            return {kReplacement, i, false};
        }
        code_point = (code_point << 6) | (byte(i) & 0x3Fu);
        low = 0x80;
        high = 0xBF;
    }
    return {code_point, needed + 1, true};
}

/// Length of the ASCII prefix of `bytes`, eight bytes a step.
std::size_t AsciiPrefix(const char* bytes, std::size_t size) {
    std::size_t i = 0;
    for (; i + 8 <= size; i += 8) {
        std::uint64_t eight;
        std::memcpy(&eight, bytes + i, 8);
        if ((eight & 0x8080808080808080u) != 0) break;
    }
    while (i < size && static_cast<unsigned char>(bytes[i]) < 0x80) ++i;
    return i;
}

}  // namespace

void AppendFromUtf8(std::string_view bytes, std::wstring& out) {
    const std::size_t start = out.size();
    out.resize(start + bytes.size());  // never more units than bytes
    wchar_t* at = out.data() + start;
    std::size_t i = 0;
    while (i < bytes.size()) {
        const std::size_t ascii = AsciiPrefix(bytes.data() + i, bytes.size() - i);
        const char* from = bytes.data() + i;
        for (std::size_t k = 0; k < ascii; ++k) at[k] = static_cast<unsigned char>(from[k]);
        at += ascii;
        i += ascii;
        while (i < bytes.size() && static_cast<unsigned char>(bytes[i]) >= 0x80) {
            const Sequence sequence = ReadSequence(bytes.substr(i));
            if (sequence.code_point > 0xFFFF) {
                *at++ = static_cast<wchar_t>(0xD800 + ((sequence.code_point - 0x10000) >> 10));
                *at++ = static_cast<wchar_t>(0xDC00 + (sequence.code_point & 0x3FF));
            } else {
                *at++ = static_cast<wchar_t>(sequence.code_point);
            }
            i += sequence.length;
        }
    }
    out.resize(static_cast<std::size_t>(at - out.data()));
}

std::wstring FromUtf8(std::string_view bytes) {
    std::wstring text;
    AppendFromUtf8(bytes, text);
    return text;
}

std::string ToUtf8(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size() + text.size() / 8);
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t c = static_cast<std::uint16_t>(text[i]);
        if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<std::uint16_t>(text[++i]) - 0xDC00u);
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            c = kReplacement;
        }
        if (c < 0x80) {
            bytes.push_back(static_cast<char>(c));
        } else if (c < 0x800) {
            bytes.push_back(static_cast<char>(0xC0 | (c >> 6)));
            bytes.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else if (c < 0x10000) {
            bytes.push_back(static_cast<char>(0xE0 | (c >> 12)));
            bytes.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            bytes.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else {
            bytes.push_back(static_cast<char>(0xF0 | (c >> 18)));
            bytes.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
            bytes.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            bytes.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        }
    }
    return bytes;
}

bool IsUtf8(std::string_view bytes) {
    std::size_t i = 0;
    while (i < bytes.size()) {
        i += AsciiPrefix(bytes.data() + i, bytes.size() - i);
        if (i == bytes.size()) break;
        const Sequence sequence = ReadSequence(bytes.substr(i));
        if (!sequence.valid) return false;
        i += sequence.length;
    }
    return true;
}

bool IsAscii(std::string_view bytes) {
    return AsciiPrefix(bytes.data(), bytes.size()) == bytes.size();
}

std::size_t CountCharacters(std::wstring_view text) {
    std::size_t pairs = 0;
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (IsHighSurrogate(text[i]) && IsLowSurrogate(text[i + 1])) {
            ++pairs;
            ++i;
        }
    }
    return text.size() - pairs;
}

wchar_t LowerChar(wchar_t c) {
    return static_cast<wchar_t>(LowerTable()[static_cast<std::uint16_t>(c)]);
}

wchar_t UpperChar(wchar_t c) {
    return static_cast<wchar_t>(UpperTable()[static_cast<std::uint16_t>(c)]);
}

std::wstring Lower(std::wstring_view text) {
    const CaseTable& table = LowerTable();
    std::wstring lower(text);
    for (wchar_t& c : lower) c = static_cast<wchar_t>(table[static_cast<std::uint16_t>(c)]);
    return lower;
}

std::wstring Upper(std::wstring_view text) {
    const CaseTable& table = UpperTable();
    std::wstring upper(text);
    for (wchar_t& c : upper) c = static_cast<wchar_t>(table[static_cast<std::uint16_t>(c)]);
    return upper;
}

bool EqualIgnoringCase(std::wstring_view a, std::wstring_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(),
                      [](wchar_t x, wchar_t y) { return x == y || LowerChar(x) == LowerChar(y); });
}

std::wstring_view Trim(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring_view::npos) return {};
    return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

std::int32_t NumberOrZero(std::wstring_view text) {
    text = Trim(text);
    const bool negative = !text.empty() && text.front() == L'-';
    if (!text.empty() && (text.front() == L'-' || text.front() == L'+')) text.remove_prefix(1);
    if (text.empty()) return 0;
    std::int64_t value = 0;
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9') return 0;
        value = value * 10 + (c - L'0');
        if (value > std::int64_t{1} << 40) return 0;
    }
    if (negative) value = -value;
    if (value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max()) {
        return 0;
    }
    return static_cast<std::int32_t>(value);
}

AnsiCodePage::AnsiCodePage(int number) : number_(number) {
    if (!SystemCodePageTable(number, to_unicode_)) {
        for (std::size_t byte = 0; byte < 256; ++byte)
            to_unicode_[byte] = static_cast<wchar_t>(byte);
    }
    // Downwards, so that of two bytes for one character the lower wins.
    for (int byte = 255; byte >= 0; --byte) {
        to_byte_.Set(to_unicode_[static_cast<std::size_t>(byte)], static_cast<std::int16_t>(byte));
    }
    for (std::size_t byte = 0; byte < 256; ++byte) {
        lower_[byte] = ToByte(LowerChar(to_unicode_[byte]));
        upper_[byte] = ToByte(UpperChar(to_unicode_[byte]));
    }
}

const AnsiCodePage& AnsiCodePage::Get(int number) {
    static std::mutex mutex;
    static std::map<int, std::unique_ptr<AnsiCodePage>> pages;
    const bool windows = number == 874 || (number >= 1250 && number <= 1258);
    const bool others = number == 20866 || number == 21866 || (number > 28590 && number < 28606);
    if (!windows && !others) number = 1252;
    const std::lock_guard lock(mutex);
    std::unique_ptr<AnsiCodePage>& page = pages[number];
    if (!page) page = std::make_unique<AnsiCodePage>(number);
    return *page;
}

std::wstring AnsiCodePage::Decode(std::string_view bytes) const {
    std::wstring text(bytes.size(), L'\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        text[i] = to_unicode_[static_cast<unsigned char>(bytes[i])];
    }
    return text;
}

std::string AnsiCodePage::Encode(std::wstring_view text) const {
    std::string bytes(text.size(), '\0');
    for (std::size_t i = 0; i < text.size(); ++i) bytes[i] = static_cast<char>(ToByte(text[i]));
    return bytes;
}

}  // namespace wordhawk
