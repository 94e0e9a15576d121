#pragma once

#include "engine/suggest/edit_path.h"
#include "engine/suggest/near_distance.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

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
    Letters,      ///< they are not made of the same letters
    Vowels,       ///< their vowels differ, neighbouring equal ones taken once
    Shorter,      ///< the word is shorter than what was written
    FirstRarity,  ///< Rarity, up to kUncommon
    SoundEdits,   ///< how many edits their sounds are apart
};
inline constexpr std::size_t kTraits = 12;

/// Commonness of the commonest words, which have no Rarity.
inline constexpr float kCommonest = 17;
/// Writers mean an uncommon word less often than a common one, but a rare one hardly less often
/// than that: from this Rarity on it costs less.
inline constexpr float kUncommon = 6;

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

/// The keys of what was written, and how far the sounds of other words are from its own.
struct WrittenSounds : WordSounds {
    NearDistance sound_distance;

    explicit WrittenSounds(const Spelling& written)
        : WordSounds(written),
          sound_distance(std::string_view(sound).substr(0, NearDistance::kLongest)) {}
};

/// The values of all traits but those of rarity, which are 0.
TraitValues CompareWords(const Spelling& meant, const Spelling& written,
                         const WrittenSounds& written_sounds);

/// Puts in the traits of rarity.
inline void SetRarity(TraitValues& values, float commonness) {
    const float rarity = kCommonest - commonness;
    values[static_cast<std::size_t>(Trait::Rarity)] = rarity;
    values[static_cast<std::size_t>(Trait::FirstRarity)] = std::min(rarity, kUncommon);
}

}  // namespace wordhawk
