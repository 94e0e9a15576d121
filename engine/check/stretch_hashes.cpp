#include "engine/check/stretch_hashes.h"

namespace wordhawk {

void StretchHashes::Append(std::wstring_view text) {
    while (powers_.size() <= text.size()) powers_.push_back(Times(powers_.back(), kBase));
    for (const wchar_t c : text) {
        // No unit is 0, or the length of a stretch of NUL would not count.
        const std::uint64_t sum = Times(sums_.back(), kBase) + static_cast<std::uint16_t>(c) + 1;
        sums_.push_back(sum >= kPrime ? sum - kPrime : sum);
    }
}

}  // namespace wordhawk
