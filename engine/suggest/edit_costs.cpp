#include "engine/suggest/edit_costs.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace wordhawk {
namespace {

#include "engine/suggest/learned_costs.inc"

constexpr int kPrimaryLanguage = 0x3FF;
constexpr int kEnglish = 9;

}  // namespace

const LearnedTable& LearnedTableFor(int locale) {
    static constexpr LearnedTable kTables[] = {{kGenericEdits, kGenericTraits},
                                               {kEnglishEdits, kEnglishTraits}};
    return kTables[(locale & kPrimaryLanguage) == kEnglish];
}

EditCosts::EditCosts(const LearnedTable& table)
    : learned_(std::bit_ceil(2 * table.edits.size() + 1)), slots_(1024, kFree) {
    for (const LearnedCost& cost : table.edits) learned_[PlaceOf(cost.feature)] = cost;
}

/// Where the feature stands, or the free place where it would.
std::size_t EditCosts::PlaceOf(EditFeature feature) const {
    std::size_t i = feature * 0x9E3779B1U >> 8 & (learned_.size() - 1);
    while (learned_[i].hundredths != 0 && learned_[i].feature != feature)
        i = (i + 1) & (learned_.size() - 1);
    return i;
}

float EditCosts::Compute(const Edit& edit) const {
    int hundredths = 0;
    for (const EditFeature feature : FeaturesOf(edit))
        hundredths += learned_[PlaceOf(feature)].hundredths;
    return std::max(static_cast<float>(hundredths) / 100, kLowest);
}

float EditCosts::Remember(const Edit& edit, std::uint64_t number) {
    if (2 * (used_ + 1) > slots_.size()) {
        // Far more than the edits of any language; should they ever be more, they begin anew.
        const bool full = slots_.size() == kMostSlots;
        std::vector<Slot> old = std::exchange(
            slots_, std::vector<Slot>(full ? slots_.size() : 2 * slots_.size(), kFree));
        used_ = 0;
        if (!full) {
            for (const Slot slot : old) {
                if (slot == kFree) continue;
                std::size_t i = SlotOf(NumberOf(slot));
                while (slots_[i] != kFree) i = (i + 1) & (slots_.size() - 1);
                slots_[i] = slot;
                ++used_;
            }
        }
    }
    std::size_t i = SlotOf(number);
    while (slots_[i] != kFree) i = (i + 1) & (slots_.size() - 1);
    const float cost = Compute(edit);
    slots_[i] = number << kCostBits | std::bit_cast<std::uint32_t>(cost);
    ++used_;
    return cost;
}

}  // namespace wordhawk
