#include "cli/seen_words.h"

#include <functional>

namespace wordhawk {

bool SeenWords::Add(std::string_view word) {
    const auto hash = static_cast<std::uint32_t>(std::hash<std::string_view>()(word));
    const auto length = static_cast<std::uint32_t>(word.size());
    const std::size_t last = slots_.size() - 1;
    std::size_t at = hash & last;
    for (; slots_[at].place != 0; at = (at + 1) & last) {
        const Slot& slot = slots_[at];
        if (slot.hash == hash && slot.length == length &&
            std::string_view(bytes_.data() + slot.place - 1, length) == word) {
            return false;
        }
    }
    slots_[at] = {bytes_.size() + 1, hash, length};
    bytes_.insert(bytes_.end(), word.begin(), word.end());
    if (++count_ * 3 > slots_.size() * 2) Grow();
    return true;
}

void SeenWords::Grow() {
    std::vector<Slot> larger(slots_.size() * 2);
    const std::size_t last = larger.size() - 1;
    for (const Slot& slot : slots_) {
        if (slot.place == 0) continue;
        std::size_t at = slot.hash & last;
        while (larger[at].place != 0) at = (at + 1) & last;
        larger[at] = slot;
    }
    slots_ = std::move(larger);
}

}  // namespace wordhawk
