#include "engine/suggest/near_distance.h"

#include <cassert>

namespace wordhawk {

NearDistance::NearDistance(std::string_view word)
    : last_(word.empty() ? 0 : std::uint64_t{1} << (word.size() - 1)),
      size_(static_cast<int>(word.size())) {
    assert(word.size() <= std::size_t{kLongest});
    for (std::size_t i = 0; i < word.size(); ++i)
        places_[static_cast<unsigned char>(word[i])] |= std::uint64_t{1} << i;
}

}  // namespace wordhawk
