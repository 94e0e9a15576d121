#pragma once

#include "engine/suggest/letters.h"

#include <array>
#include <cstdint>

namespace wordhawk {

/// What a writer does to the letters that were meant.
enum class EditKind : std::uint8_t {
    Drop,       ///< meant[0] is not written
    Insert,     ///< written[0] is written besides
    Mistake,    ///< written[0] for meant[0]
    Swap,       ///< meant[1], meant[0]
    TwoForOne,  ///< written[0] for both meant (f for ph)
    OneForTwo,  ///< both written for meant[0] (ph for f)
};

/// One edit with the meant letters around it, which decide how likely it is.
struct Edit {
    EditKind kind = EditKind::Mistake;
    std::array<Letter, 2> meant{};
    std::array<Letter, 2> written{};
    Letter before = letters::kBeginning;
    Letter behind = letters::kEnd;

    /// Below 2^33, different for every edit.
    std::uint64_t Number() const {
        std::uint64_t number = static_cast<std::uint64_t>(kind);
        for (const Letter l : {meant[0], meant[1], written[0], written[1], before, behind})
            number = number << 5 | l;
        return number;
    }
};

/// Names one property of an edit; the cost of an edit is the sum of its properties' costs. Bits 20
/// and up tell the kind of the property, see edit.cpp.
using EditFeature = std::uint32_t;

struct EditFeatures {
    std::array<EditFeature, 5> list{};
    std::size_t count = 0;

    void Add(EditFeature feature) { list[count++] = feature; }
    const EditFeature* begin() const { return list.data(); }
    const EditFeature* end() const { return list.data() + count; }
};

/// The properties of an edit: first its class (a vowel for a vowel, a letter doubled, at the
/// beginning of the word ...), which is known of every alphabet, then those that name its letters.
EditFeatures FeaturesOf(const Edit& edit);

/// Whether a property names no letter, and so holds for every language.
bool IsGeneric(EditFeature feature);

/// What a generic property costs before anything was learned.
float InitialCost(EditFeature feature);

}  // namespace wordhawk
