#pragma once

#include "engine/suggest/edit_path.h"

#include <array>
#include <cstdint>
#include <string>

namespace wordhawk {

/// What is compared of two words as wholes, beside the edits between them.
enum class Trait : std::uint8_t {
    Rarity,      ///< natural logarithm of how much rarer the word is than the commonest
    Consonants,  ///< their consonants differ, doubled ones taken once
    FirstLetter,
    FinalS,      ///< one ends in s and the other does not
    Sound,       ///< they would be read aloud differently, by the rules of English
    Possessive,  ///< the word ends in 's
    LastLetter,
    Letters,  ///< they are not made of the same letters
    Vowels,   ///< their vowels differ, neighbouring equal ones taken once
    Shorter,  ///< the word is shorter than what was written
};
inline constexpr std::size_t kTraits = 10;

using TraitWeights = std::array<float, kTraits>;
using TraitValues = std::array<float, kTraits>;

/// How a word is read aloud by the rules of English: one character a sound, vowels left out but for
/// a first one.
std::string SoundOf(const Spelling& word);

/// A word's keys for the comparison.
struct WordSounds {
    std::string consonants;
    std::string vowels;
    std::string letters;  ///< ascending
    std::string sound;

    explicit WordSounds(const Spelling& word);
};

/// The values of all traits but Rarity, which is 0.
TraitValues CompareWords(const Spelling& meant, const Spelling& written,
                         const WordSounds& written_sounds);

}  // namespace wordhawk
