#include "engine/document/rtf_unicode.h"

#include <algorithm>

namespace wordhawk {

std::wstring TextOfUnicodeWord(int number) {
    const int value = number < 0 ? number + 0x10000 : number;
    if (value < 0 || value > 0x10FFFF) return {};
    if (value <= 0xFFFF) return {static_cast<wchar_t>(value)};
    return {static_cast<wchar_t>(0xD800 + ((value - 0x10000) >> 10)),
            static_cast<wchar_t>(0xDC00 + (value & 0x3FF))};
}

std::string_view RtfFallback::Behind(std::string_view bytes) {
    const std::size_t taken = std::min(bytes.size(), static_cast<std::size_t>(left_));
    left_ -= static_cast<int>(taken);
    return bytes.substr(taken);
}

}  // namespace wordhawk
