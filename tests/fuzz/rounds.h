#pragma once

#include <cstdint>
#include <cstdlib>

namespace wordhawk::test {

/// Random inputs that a fuzz test goes through: WORDHAWK_FUZZ_ROUNDS, or enough for every run.
inline std::uint32_t Rounds() {
    const char* const asked = std::getenv("WORDHAWK_FUZZ_ROUNDS");
    return asked != nullptr ? static_cast<std::uint32_t>(std::atol(asked)) : 4000u;
}

}  // namespace wordhawk::test
