#pragma once

#include <cstddef>
#include <cstdint>

namespace wordhawk {

/// Up to 16 bytes, none of them NUL, as one number: equal numbers are equal words.
struct PackedWord {
    static constexpr std::size_t kLongest = 16;
    std::uint64_t high = 0;
    std::uint64_t low = 0;

    void Append(unsigned char byte) {
        high = (high << 8) | (low >> 56);
        low = (low << 8) | byte;
    }
    bool operator==(const PackedWord&) const = default;
};

}  // namespace wordhawk
