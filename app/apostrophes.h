#pragma once

#include <algorithm>
#include <string>

namespace wordhawk {

inline constexpr wchar_t kTypographicApostrophe = L'\x2019';

/// `text` with straight apostrophes for typographic ones; its length stays.
inline std::wstring WithStraightApostrophes(std::wstring text) {
    std::replace(text.begin(), text.end(), kTypographicApostrophe, L'\'');
    return text;
}

/// `text` with typographic apostrophes for straight ones.
inline std::wstring WithTypographicApostrophes(std::wstring text) {
    std::replace(text.begin(), text.end(), L'\'', kTypographicApostrophe);
    return text;
}

}  // namespace wordhawk
