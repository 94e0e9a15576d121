#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace wordhawk {

/// Hashes of all stretches of a text, each to be had in constant time. Equal stretches have equal
/// hashes; unequal ones of 2 million units share one in fewer than one case of 10^12.
class StretchHashes {
  public:
    void Append(std::wstring_view text);
    void Clear() { sums_.resize(1); }
    bool Empty() const { return sums_.size() == 1; }

    /// Hash of `length` units from `at` on; no longer than the longest text that was appended.
    std::uint64_t Of(std::size_t at, std::size_t length) const {
        const std::uint64_t before = Times(sums_[at], powers_[length]);
        const std::uint64_t sum = sums_[at + length];
        return sum >= before ? sum - before : sum + kPrime - before;
    }

  private:
    static constexpr std::uint64_t kPrime = (std::uint64_t{1} << 61) - 1;
    static constexpr std::uint64_t kBase = 0x0B4C8E1FD2A63975u;

    static std::uint64_t Times(std::uint64_t a, std::uint64_t b) {
        __extension__ typedef unsigned __int128 Wide;
        const Wide product = static_cast<Wide>(a) * b;
        const std::uint64_t folded = (static_cast<std::uint64_t>(product) & kPrime) +
                                     static_cast<std::uint64_t>(product >> 61);
        return folded >= kPrime ? folded - kPrime : folded;
    }

    /// Of the text before each unit, as the digits of a number to the base kBase.
    std::vector<std::uint64_t> sums_ = {0};
    std::vector<std::uint64_t> powers_ = {1};
};

}  // namespace wordhawk
