#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace wordhawk {

/// Finds words at most two edits apart without comparing them: leave any two characters out of the
/// first seven of both (words are thought to go on in zeros); then at least one of the rests, the
/// skeletons, is the same. An edit is undone by leaving out at most one character on each side.
namespace skeletons {

inline constexpr std::size_t kPrefix = 7;
inline constexpr std::size_t kMost = kPrefix * (kPrefix - 1) / 2;

/// The first characters of a word as one number, filled up with zeros.
constexpr std::uint64_t PrefixOf(std::string_view word) {
    std::uint64_t prefix = 0;
    for (std::size_t i = 0; i < kPrefix; ++i)
        prefix = prefix << 8 | (i < word.size() ? static_cast<unsigned char>(word[i]) : 0U);
    return prefix;
}

/// A few bits of a skeleton, well mixed.
constexpr std::uint32_t Bucket(std::uint64_t skeleton, unsigned bits) {
    skeleton *= 0x9E3779B97F4A7C15U;
    skeleton ^= skeleton >> 32;
    return static_cast<std::uint32_t>((skeleton * 0xD6E8FEB86659FD93U) >> (64 - bits));
}

/// The different buckets of a prefix's skeletons; returns how many.
inline std::size_t BucketsOf(std::uint64_t prefix, unsigned bits,
                             std::array<std::uint32_t, kMost>& buckets) {
    const auto without = [](std::uint64_t text, std::size_t place) {
        const std::uint64_t behind = (std::uint64_t{1} << (8 * place)) - 1;
        return (text >> 8 & ~behind) | (text & behind);
    };
    std::size_t count = 0;
    for (std::size_t first = 1; first < kPrefix; ++first) {
        const std::uint64_t six = without(prefix, first);
        for (std::size_t second = 0; second < first; ++second)
            buckets[count++] = Bucket(without(six, second), bits);
    }
    std::sort(buckets.begin(), buckets.begin() + static_cast<std::ptrdiff_t>(count));
    return static_cast<std::size_t>(
        std::unique(buckets.begin(), buckets.begin() + static_cast<std::ptrdiff_t>(count)) -
        buckets.begin());
}

}  // namespace skeletons

/// One bit for each of 32 groups of bytes that stand in a word.
constexpr std::uint32_t LetterGroups(std::string_view word) {
    std::uint32_t groups = 0;
    for (const char c : word) groups |= std::uint32_t{1} << (static_cast<unsigned char>(c) & 31);
    return groups;
}

/// The bits that are set, in a form that a compiler can do for several numbers at once;
/// std::popcount would be called for each.
constexpr std::uint8_t CountBits(std::uint32_t bits) {
    bits -= bits >> 1 & 0x55555555U;
    bits = (bits & 0x33333333U) + (bits >> 2 & 0x33333333U);
    bits = (bits + (bits >> 4)) & 0x0F0F0F0FU;
    bits += bits >> 8;
    bits += bits >> 16;
    return bits & 0x3F;
}

/// Two words of these groups are at least so many edits apart: an edit brings at most one group and
/// takes at most one away.
constexpr std::uint8_t LeastEdits(std::uint32_t a, std::uint32_t b) {
    return std::max(CountBits(a & ~b), CountBits(b & ~a));
}

}  // namespace wordhawk
