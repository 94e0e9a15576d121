#pragma once

#include "engine/check/packed_word.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace wordhawk {

/// The letters at the beginning of a text of ASCII, of at most 16 of them, looked at eight bytes a
/// step.
class AsciiLetters {
  public:
    static constexpr std::size_t kMost = 16;

    /// Reads kMost bytes, all of ASCII.
    explicit AsciiLetters(const char* text) {
        std::memcpy(lower_.data(), text, kMost);
        for (std::uint64_t& eight : lower_) eight |= kLowerBits;
        count_ = CountIn(lower_[0]);
        if (count_ == 8) count_ += CountIn(lower_[1]);
    }

    std::size_t Count() const { return count_; }

    /// The letters in lower case; valid as long as the object.
    std::string_view Lower() const {
        return {reinterpret_cast<const char*>(lower_.data()), count_};
    }

    /// The same as one number; there is at least one letter.
    PackedWord Packed() const {
        const std::uint64_t first = FirstByteHighest(lower_[0]);
        if (count_ <= 8) return {0, first >> (64 - 8 * count_)};
        const std::uint64_t second = FirstByteHighest(lower_[1]);
        const std::size_t unused_bits = 8 * (kMost - count_);
        if (unused_bits == 0) return {first, second};
        return {first >> unused_bits, first << (64 - unused_bits) | second >> unused_bits};
    }

  private:
    static constexpr std::uint64_t kEachByte = 0x0101010101010101;
    /// Makes lower-case letters of capitals, and of nothing else a letter.
    static constexpr std::uint64_t kLowerBits = 0x20 * kEachByte;
    static constexpr bool kIsLittleEndian = std::endian::native == std::endian::little;

    /// How many of the bytes, whose bit of the lower case is set, are letters before another one.
    static std::size_t CountIn(std::uint64_t eight) {
        // The highest bit of each byte, which none of them has, tells how the sum came out.
        const std::uint64_t not_below_a = eight + (0x80 - 'a') * kEachByte;
        const std::uint64_t above_z = eight + (0x80 - ('z' + 1)) * kEachByte;
        const std::uint64_t others = (~not_below_a | above_z) & 0x80 * kEachByte;
        const int zeros = kIsLittleEndian ? std::countr_zero(others) : std::countl_zero(others);
        return static_cast<std::size_t>(zeros) / 8;
    }

    static std::uint64_t FirstByteHighest(std::uint64_t eight) {
        return kIsLittleEndian ? __builtin_bswap64(eight) : eight;
    }

    std::array<std::uint64_t, 2> lower_;
    std::size_t count_;
};

}  // namespace wordhawk
