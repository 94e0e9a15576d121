#include "cli/visible_text.h"

#include "platform/text.h"

#include <algorithm>
#include <cstdint>

namespace wordhawk {
namespace {

constexpr std::string_view kDigits = "0123456789abcdef";

std::string Hex(std::uint32_t value, int digits) {
    std::string text;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
        text += kDigits[(value >> shift) & 15];
    return text;
}

/// Bytes of the character that begins `utf8` (not empty), or 1 when none does.
std::size_t LengthOfFirst(std::string_view utf8) {
    for (std::size_t length = 1; length <= std::min<std::size_t>(4, utf8.size()); ++length) {
        if (IsUtf8(utf8.substr(0, length))) return length;
    }
    return 1;
}

}  // namespace

bool IsHostileOnScreen(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x061C || c == 0x200E || c == 0x200F ||
           (c >= 0x2028 && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069) || c == 0xFEFF;
}

std::string VisibleText(std::string_view utf8) {
    std::string visible;
    while (!utf8.empty()) {
        const auto byte = static_cast<unsigned char>(utf8.front());
        if (byte >= 0x20 && byte < 0x7F) {
            visible += utf8.front();
            utf8.remove_prefix(1);
            continue;
        }
        const std::string_view character = utf8.substr(0, LengthOfFirst(utf8));
        utf8.remove_prefix(character.size());
        if (byte < 0x80 || character.size() == 1) {
            visible += "\\x" + Hex(byte, 2);
            continue;
        }
        const std::wstring units = FromUtf8(character);
        const auto unit = static_cast<std::uint16_t>(units.front());
        if (units.size() == 1 && IsHostileOnScreen(unit)) {
            visible += "\\u" + Hex(unit, 4);
        } else {
            visible += character;
        }
    }
    return visible;
}

}  // namespace wordhawk
