#pragma once

#include <bit>
#include <cstdint>

namespace wordhawk {

// The systems' libraries differ in the last bit of these functions, which may make another score of
// a suggestion; and the command line would load one for them alone at each start.

/// Natural logarithm of a number from 1 up, to 15 digits.
constexpr double NaturalLog(double x) {
    constexpr double kLogOf2 = 0.693147180559945309417232121458;
    constexpr double kRootOf2 = 1.41421356237309504880168872421;
    constexpr int kFractionBits = 52;
    constexpr std::uint64_t kFraction = (std::uint64_t{1} << kFractionBits) - 1;
    const auto bits = std::bit_cast<std::uint64_t>(x);
    auto exponent = static_cast<int>(bits >> kFractionBits) - 1023;
    // From 1 to 2, then around 1, where the series is short.
    double rest = std::bit_cast<double>((bits & kFraction) | std::bit_cast<std::uint64_t>(1.0));
    if (rest > kRootOf2) {
        rest /= 2;
        ++exponent;
    }
    const double t = (rest - 1) / (rest + 1);
    double sum = 0;
    for (int i = 21; i > 0; i -= 2) sum = sum * t * t + 1.0 / i;
    return 2 * t * sum + exponent * kLogOf2;
}

/// e to the power -x for an x of 0 or more, to 15 digits.
constexpr double PowerOfMinus(double x) {
    constexpr double kHopeless = 700;  // hardly a number above 0
    if (x > kHopeless) return 0;
    // A power of 1/e for the whole part, a series for what is left.
    constexpr double kOneByE = 0.367879441171442321595523770161;
    double power = 1;
    double square = kOneByE;
    for (auto whole = static_cast<unsigned>(x); whole != 0; whole >>= 1) {
        if ((whole & 1) != 0) power *= square;
        square *= square;
    }
    const double rest = x - static_cast<unsigned>(x);
    double sum = 1;
    for (int i = 20; i > 0; --i) sum = 1 - rest / i * sum;
    return power * sum;
}

}  // namespace wordhawk
