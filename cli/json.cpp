#include "cli/json.h"

#include "cli/visible_text.h"
#include "platform/text.h"

#include <cstdint>

namespace wordhawk {

namespace {

void AppendEscape(std::string& quoted, unsigned c) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    quoted += "\\u";
    for (int shift = 12; shift >= 0; shift -= 4) quoted += kDigits[(c >> shift) & 15];
}

}  // namespace

std::string JsonString(std::string_view utf8) {
    std::string repaired;
    if (!IsUtf8(utf8)) {
        repaired = ToUtf8(FromUtf8(utf8));
        utf8 = repaired;
    }
    std::string quoted = "\"";
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        switch (c) {
            case '"': quoted += "\\\""; continue;
            case '\\': quoted += "\\\\"; continue;
            case '\n': quoted += "\\n"; continue;
            case '\r': quoted += "\\r"; continue;
            case '\t': quoted += "\\t"; continue;
            default: break;
        }
        // Of the characters beyond ASCII only some of two and three bytes are hostile on a screen.
        const std::size_t length = c < 0x80 ? 1 : c < 0xE0 ? 2 : c < 0xF0 ? 3 : 4;
        const std::string_view character = utf8.substr(i, length);
        if (c >= 0x20 && c < 0x7F) {
            quoted += utf8[i];
        } else if (const wchar_t unit = FromUtf8(character).front();
                   length < 4 && IsHostileOnScreen(static_cast<std::uint16_t>(unit))) {
            AppendEscape(quoted, static_cast<std::uint16_t>(unit));
        } else {
            quoted += character;
        }
        i += length - 1;
    }
    return quoted += '"';
}

std::string JsonString(std::wstring_view text) {
    return JsonString(std::string_view(ToUtf8(text)));
}

}  // namespace wordhawk
