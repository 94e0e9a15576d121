#include "engine/document/text_exchange.h"

#include <algorithm>
#include <array>
#include <vector>

namespace wordhawk {
namespace {

constexpr std::array<std::wstring_view, 3> kEnds = {L"\r\n", L"\r", L"\n"};

std::vector<std::wstring_view> LineEndsIn(std::wstring_view text) {
    std::vector<std::wstring_view> ends;
    for (std::size_t at = 0; (at = text.find_first_of(L"\r\n", at)) != std::wstring_view::npos;) {
        const std::size_t length = text.substr(at, 2) == L"\r\n" ? 2 : 1;
        ends.push_back(text.substr(at, length));
        at += length;
    }
    return ends;
}

/// CR LF wins a tie.
std::wstring_view MostUsed(const std::vector<std::wstring_view>& ends) {
    return *std::max_element(kEnds.begin(), kEnds.end(), [&](auto a, auto b) {
        return std::count(ends.begin(), ends.end(), a) < std::count(ends.begin(), ends.end(), b);
    });
}

}  // namespace

std::wstring WithLineEndsOf(std::wstring_view original, std::wstring_view text) {
    const std::vector<std::wstring_view> ends = LineEndsIn(original);
    const auto breaks = static_cast<std::size_t>(std::count(text.begin(), text.end(), L'\r'));
    const std::wstring_view usual = MostUsed(ends);
    const bool each_its_own = breaks == ends.size();
    std::wstring result;
    result.reserve(text.size() + breaks);
    std::size_t number = 0;
    for (const wchar_t c : text) {
        if (c != L'\r') {
            result += c;
        } else {
            result += each_its_own ? ends[number++] : usual;
        }
    }
    return result;
}

std::string RtfBytesOf(std::wstring_view text) {
    std::string rtf;
    rtf.reserve(text.size());
    for (const wchar_t c : text) {
        const auto unit = static_cast<unsigned>(c) & 0xFFFFu;
        if (unit < 0x80) {
            rtf += static_cast<char>(unit);
        } else {
            // Numbers beyond 32767 are written as negative ones.
            const int number =
                unit < 0x8000 ? static_cast<int>(unit) : static_cast<int>(unit) - 0x10000;
            rtf += "{\\uc1\\u" + std::to_string(number) + "?}";
        }
    }
    return rtf;
}

std::wstring TextOfRtfBytes(std::string_view rtf) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::wstring text;
    text.reserve(rtf.size());
    for (const char c : rtf) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            text += static_cast<wchar_t>(byte);
        } else {
            text += L"\\'";
            text += static_cast<wchar_t>(kDigits[byte >> 4]);
            text += static_cast<wchar_t>(kDigits[byte & 15]);
        }
    }
    return text;
}

}  // namespace wordhawk
