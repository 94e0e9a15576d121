#pragma once

#include "platform/text.h"

#include <array>
#include <cstdint>

namespace wordhawk {

/// What the costs of misspelling know of a character: its letter without accents (of another
/// alphabet, the Latin letter of the nearest sound), or one of the signs below. Below 32.
using Letter = std::uint8_t;

namespace letters {

inline constexpr Letter kNone = 0;
inline constexpr Letter kApostrophe = 27;
inline constexpr Letter kBeginning = 28;  ///< before the first character of a word
inline constexpr Letter kEnd = 29;        ///< behind the last one
inline constexpr Letter kOther = 30;
inline constexpr Letter kSeparator = 31;  ///< a blank or a hyphen

/// 'a' to 'z' as 1 to 26.
constexpr Letter Of(char c) { return static_cast<Letter>(c - 'a' + 1); }

constexpr bool IsVowel(Letter l) {
    return l == Of('a') || l == Of('e') || l == Of('i') || l == Of('o') || l == Of('u') ||
           l == Of('y');
}

/// Whether the keys of two letters touch on the usual keyboard.
bool AreNeighbours(Letter a, Letter b);

/// The letter of every byte of a code page.
std::array<Letter, 256> OfPage(const AnsiCodePage& page);

}  // namespace letters
}  // namespace wordhawk
