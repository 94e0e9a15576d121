#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace wordhawk {

enum class Transposition { NotCounted, OneEdit };

/// Edit distance between a word and a candidate, comparing UTF-16 units as they are.
class cLS {
  public:
    /// With OneEdit a cell may also come from two swapped neighbours; when that value equals the
    /// cell's own the cell becomes 0 (MinOf2), so distances can be smaller than either rule alone.
    std::int32_t LevenshteinDistance(std::wstring_view source, std::wstring_view target,
                                     Transposition transposition);

    /// Whether the distance without swaps is at most `limit`: looks at no more than 2 * limit + 1
    /// cells of each row.
    bool IsWithin(std::wstring_view source, std::wstring_view target, std::int32_t limit);

    /// The smaller value; 0 when both are equal.
    static std::int32_t MinOf2(std::int32_t a, std::int32_t b) { return a < b ? a : b < a ? b : 0; }
    static std::int32_t MinOf3(std::int32_t a, std::int32_t b, std::int32_t c) {
        const std::int32_t t = b < a ? b : a;
        return c < t ? c : t;
    }

  private:
    std::vector<std::int32_t> rows_;
};

}  // namespace wordhawk
