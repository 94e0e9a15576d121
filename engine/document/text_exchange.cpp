#include "engine/document/text_exchange.h"

namespace wordhawk {

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
