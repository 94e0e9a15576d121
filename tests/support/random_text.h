#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace wordhawk::test {

/// Seeded source of test input; the same numbers on every platform (no std:: distributions, whose
/// results differ between libraries).
class Random {
  public:
    explicit Random(std::uint32_t seed) : engine_(seed) {}

    /// 0 to `limit` - 1.
    std::size_t Below(std::size_t limit) { return engine_() % limit; }
    bool OneIn(std::size_t n) { return Below(n) == 0; }

    template <class Text>
    auto Pick(const Text& from) {
        return from[Below(from.size())];
    }

    std::wstring Word(std::wstring_view letters, std::size_t shortest, std::size_t longest) {
        std::wstring word;
        const std::size_t length = shortest + Below(longest - shortest + 1);
        for (std::size_t i = 0; i < length; ++i) word.push_back(Pick(letters));
        return word;
    }

    /// Pieces drawn from `pieces` and put behind one another.
    std::wstring Mix(const std::vector<std::wstring>& pieces, std::size_t count) {
        std::wstring text;
        for (std::size_t i = 0; i < count; ++i) text += Pick(pieces);
        return text;
    }

  private:
    std::mt19937 engine_;
};

}  // namespace wordhawk::test
