#include "cli/json.h"

#include "platform/text.h"

namespace wordhawk {

std::string JsonString(std::string_view utf8) {
    std::string repaired;
    if (!IsUtf8(utf8)) {
        repaired = ToUtf8(FromUtf8(utf8));
        utf8 = repaired;
    }
    std::string quoted = "\"";
    for (const char c : utf8) {
        switch (c) {
            case '"': quoted += "\\\""; break;
            case '\\': quoted += "\\\\"; break;
            case '\n': quoted += "\\n"; break;
            case '\r': quoted += "\\r"; break;
            case '\t': quoted += "\\t"; break;
            default:
                if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
                    constexpr std::string_view kDigits = "0123456789abcdef";
                    quoted += "\\u00";
                    quoted += kDigits[static_cast<std::size_t>(c) >> 4];
                    quoted += kDigits[static_cast<std::size_t>(c) & 15];
                } else {
                    quoted += c;
                }
        }
    }
    return quoted += '"';
}

std::string JsonString(std::wstring_view text) {
    return JsonString(std::string_view(ToUtf8(text)));
}

}  // namespace wordhawk
