#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace wordhawk {

/// Counts the edits (a character dropped, inserted, mistaken, or two neighbours swapped, none of
/// them edited twice) between one word of at most kLongest bytes and any other, one step a byte.
class NearDistance {
  public:
    static constexpr int kLongest = 64;

    explicit NearDistance(std::string_view word);

    /// The edits; some number above `most` when they are more than that.
    int To(std::string_view other, int most = 2 * kLongest) const {
        if (size_ == 0) return static_cast<int>(other.size());
        // Bit i of a row: what changes from character i of the word to the next.
        std::uint64_t up = ~std::uint64_t{0};
        std::uint64_t down = 0;
        std::uint64_t diagonal = 0;
        std::uint64_t last_places = 0;
        int distance = size_;
        int left_over = static_cast<int>(other.size());
        for (const char c : other) {
            const std::uint64_t places = places_[static_cast<unsigned char>(c)];
            const std::uint64_t swapped = ((~diagonal & places) << 1) & last_places;
            diagonal = swapped | (((places & up) + up) ^ up) | places | down;
            std::uint64_t right = down | ~(diagonal | up);
            std::uint64_t left = diagonal & up;
            distance += (right & last_) != 0;
            distance -= (left & last_) != 0;
            if (distance - --left_over > most) return distance;
            right = right << 1 | 1;
            left <<= 1;
            up = left | ~(diagonal | right);
            down = right & diagonal;
            last_places = places;
        }
        return distance;
    }

  private:
    std::array<std::uint64_t, 256> places_{};
    std::uint64_t last_;
    int size_;
};

}  // namespace wordhawk
