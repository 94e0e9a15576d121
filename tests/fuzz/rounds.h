#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <string>

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

/// Names the input of a round that failed, when the round ends; costs nothing in the others.
class Input {
  public:
    Input(std::uint32_t round, const std::string& bytes) : round_(round), bytes_(bytes) {}
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;
    ~Input() {
        if (testing::Test::HasFailure())
            ADD_FAILURE() << "round " << round_ << " " << testing::PrintToString(bytes_);
    }

  private:
    std::uint32_t round_;
    const std::string& bytes_;
};

}  // namespace wordhawk::test
