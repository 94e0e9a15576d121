#pragma once

#include <array>
#include <cstdint>

namespace wordhawk {

/// Whether a unit belongs to a word for the whole-word search: letters, digits and the marks that
/// combine with them. Apostrophes, hyphens, the underscore and surrogates do not.
bool IsWordCharacter(wchar_t c);

/// LowerChar of every word character, 0 for every other unit: one look-up for loops over a text.
const std::array<std::uint16_t, 65536>& FoldedWordCharacters();

}  // namespace wordhawk
