#pragma once

#include <cstdint>
#include <cstdlib>

namespace wordhawk::test {

/// Random inputs that a fuzz test goes through: WORDHAWK_FUZZ_ROUNDS, or enough for every run.
inline std::uint32_t Rounds() {
    const char* const asked = std::getenv("WORDHAWK_FUZZ_ROUNDS");
    return asked != nullptr ? static_cast<std::uint32_t>(std::atol(asked)) : 4000u;
}

/// A number to add to every seed, WORDHAWK_FUZZ_SEED: other inputs in each run of bench/fuzz.sh,
/// the same ones in every run of the tests.
inline std::uint32_t Seed() {
    const char* const asked = std::getenv("WORDHAWK_FUZZ_SEED");
    return asked != nullptr ? static_cast<std::uint32_t>(std::atol(asked)) : 0u;
}

}  // namespace wordhawk::test
