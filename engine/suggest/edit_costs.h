#pragma once

#include "engine/suggest/edit.h"
#include "engine/suggest/word_traits.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <span>
#include <vector>

namespace wordhawk {

/// The learned cost of one property of an edit, in hundredths of a nat (the natural logarithm of a
/// probability, negated). A property that is not in a table costs nothing.
struct LearnedCost {
    EditFeature feature;
    std::int16_t hundredths;  ///< never 0
};

/// What was learned for a language from pairs of misspelling and word: see bench/learn.
struct LearnedTable {
    std::span<const LearnedCost> edits;  ///< ascending by feature
    TraitWeights traits;
};

/// The table of a language by its locale number: English has its own, every other language the one
/// that holds for any alphabet.
const LearnedTable& LearnedTableFor(int locale);

/// Whether the table tells words by how they are read aloud.
inline bool KnowsSounds(const LearnedTable& table) {
    return table.traits[static_cast<std::size_t>(Trait::Sound)] > 0;
}

/// What the rarity of a word costs.
inline float CostOfRarity(const LearnedTable& table, float commonness) {
    const float rarity = kCommonest - commonness;
    return table.traits[static_cast<std::size_t>(Trait::Rarity)] * rarity +
           table.traits[static_cast<std::size_t>(Trait::FirstRarity)] * std::min(rarity, kUncommon);
}

/// Costs of edits from a table, each computed once. Not to be shared between threads.
class EditCosts {
  public:
    explicit EditCosts(const LearnedTable& table);

    float Of(const Edit& edit) {
        const std::uint64_t number = edit.Number();
        for (std::size_t i = SlotOf(number);; i = (i + 1) & (slots_.size() - 1)) {
            const Slot slot = slots_[i];
            if (NumberOf(slot) == number)
                return std::bit_cast<float>(static_cast<std::uint32_t>(slot & kCostMask));
            if (slot == kFree) return Remember(edit, number);
        }
    }

    /// No edit is free, or whatever is far from every word would be near to it.
    static constexpr float kLowest = 0.05F;

  private:
    /// An edit's number above its cost, whose sign is always the same: small, as most of the time
    /// goes into fetching slots from memory.
    using Slot = std::uint64_t;
    static constexpr int kCostBits = 31;
    static constexpr Slot kCostMask = (Slot{1} << kCostBits) - 1;
    static constexpr Slot kFree = ~Slot{0};
    static constexpr std::uint64_t NumberOf(Slot slot) { return slot >> kCostBits; }
    static constexpr std::size_t kMostSlots = std::size_t{1} << 18;

    std::size_t SlotOf(std::uint64_t number) const {
        return static_cast<std::size_t>((number * 0x9E3779B97F4A7C15U) >> 40) & (slots_.size() - 1);
    }
    float Remember(const Edit& edit, std::uint64_t number);
    float Compute(const Edit& edit) const;

    std::size_t PlaceOf(EditFeature feature) const;

    /// The table by hash; free places cost 0.
    std::vector<LearnedCost> learned_;
    std::vector<Slot> slots_;
    std::size_t used_ = 0;
};

}  // namespace wordhawk
