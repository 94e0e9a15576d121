#include "engine/suggest/cLS.h"

#include <algorithm>
#include <numeric>

namespace wordhawk {

std::int32_t cLS::LevenshteinDistance(std::wstring_view source, std::wstring_view target,
                                      Transposition transposition) {
    const std::size_t columns = target.size() + 1;
    // Three rows of the matrix are enough: the swap step looks two rows back.
    rows_.resize(3 * columns);
    std::int32_t* before = rows_.data();
    std::int32_t* above = before + columns;
    std::int32_t* row = above + columns;
    std::iota(row, row + columns, 0);
    for (std::size_t i = 1; i <= source.size(); ++i) {
        std::int32_t* const oldest = before;
        before = above;
        above = row;
        row = oldest;
        row[0] = static_cast<std::int32_t>(i);
        for (std::size_t j = 1; j < columns; ++j) {
            const std::int32_t cost = source[i - 1] == target[j - 1] ? 0 : 1;
            row[j] = MinOf3(above[j] + 1, row[j - 1] + 1, above[j - 1] + cost);
            if (transposition == Transposition::OneEdit && i >= 2 && j >= 2 &&
                source[i - 2] == target[j - 1] && source[i - 1] == target[j - 2]) {
                row[j] = MinOf2(row[j], before[j - 2] + cost);
            }
        }
    }
    return row[columns - 1];
}

}  // namespace wordhawk
