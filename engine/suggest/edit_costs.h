#pragma once

#include "engine/suggest/edit.h"
#include "engine/suggest/word_traits.h"

#include <cstdint>
#include <span>
#include <vector>

namespace wordhawk {

/// The learned cost of one property of an edit, in hundredths of a nat (the natural logarithm of a
/// probability, negated). A property that is not in a table costs nothing.
struct LearnedCost {
    EditFeature feature;
    std::int16_t hundredths;
};

/// What was learned for a language from pairs of misspelling and word: see bench/learn.
struct LearnedTable {
    std::span<const LearnedCost> edits;  ///< ascending by feature
    TraitWeights traits;
};

/// The table of a language by its locale number: English has its own, every other language the one
/// that holds for any alphabet.
const LearnedTable& LearnedTableFor(int locale);

/// Costs of edits from a table, each computed once. Not to be shared between threads.
class EditCosts {
  public:
    explicit EditCosts(const LearnedTable& table);

    float Of(const Edit& edit) {
        const std::uint64_t number = edit.Number();
        for (std::size_t i = SlotOf(number);; i = (i + 1) & (slots_.size() - 1)) {
            if (slots_[i].number == number) return slots_[i].cost;
            if (slots_[i].number == kFree) return Remember(edit, number);
        }
    }

    /// No edit is free, or whatever is far from every word would be near to it.
    static constexpr float kLowest = 0.05F;

  private:
    struct Slot {
        std::uint64_t number = kFree;
        float cost = 0;
    };
    static constexpr std::uint64_t kFree = ~std::uint64_t{0};
    static constexpr std::size_t kMostSlots = std::size_t{1} << 18;

    std::size_t SlotOf(std::uint64_t number) const {
        return static_cast<std::size_t>((number * 0x9E3779B97F4A7C15U) >> 40) & (slots_.size() - 1);
    }
    float Remember(const Edit& edit, std::uint64_t number);
    float Compute(const Edit& edit) const;

    std::span<const LearnedCost> table_;
    std::vector<Slot> slots_;
    std::size_t used_ = 0;
};

}  // namespace wordhawk
