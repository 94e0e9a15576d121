#include "engine/suggest/edit_costs.h"

#include <algorithm>
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

EditCosts::EditCosts(const LearnedTable& table) : table_(table.edits), slots_(1024) {}

float EditCosts::Compute(const Edit& edit) const {
    int hundredths = 0;
    for (const EditFeature feature : FeaturesOf(edit)) {
        const auto at = std::lower_bound(
            table_.begin(), table_.end(), feature,
            [](const LearnedCost& cost, EditFeature wanted) { return cost.feature < wanted; });
        if (at != table_.end() && at->feature == feature) hundredths += at->hundredths;
    }
    return std::max(static_cast<float>(hundredths) / 100, kLowest);
}

float EditCosts::Remember(const Edit& edit, std::uint64_t number) {
    if (2 * (used_ + 1) > slots_.size()) {
        // Far more than the edits of any language; should they ever be more, they begin anew.
        const bool full = slots_.size() == kMostSlots;
        std::vector<Slot> old =
            std::exchange(slots_, std::vector<Slot>(full ? slots_.size() : 2 * slots_.size()));
        used_ = 0;
        if (!full) {
            for (const Slot& slot : old) {
                if (slot.number == kFree) continue;
                std::size_t i = SlotOf(slot.number);
                while (slots_[i].number != kFree) i = (i + 1) & (slots_.size() - 1);
                slots_[i] = slot;
                ++used_;
            }
        }
    }
    std::size_t i = SlotOf(number);
    while (slots_[i].number != kFree) i = (i + 1) & (slots_.size() - 1);
    slots_[i] = {number, Compute(edit)};
    ++used_;
    return slots_[i].cost;
}

}  // namespace wordhawk
