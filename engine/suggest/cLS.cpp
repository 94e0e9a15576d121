#include "engine/suggest/cLS.h"

#include <algorithm>
#include <cstdlib>
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

bool cLS::IsWithin(std::wstring_view source, std::wstring_view target, std::int32_t limit) {
    const auto n = static_cast<std::int64_t>(source.size());
    const auto m = static_cast<std::int64_t>(target.size());
    if (limit < 0 || std::abs(n - m) > limit) return false;
    // Only cells at most `limit` off the diagonal can hold so small a value; the row is kept in
    // place, with one cell too large for any path on either side of what was looked at.
    const std::int32_t too_large = limit + 1;
    rows_.assign(static_cast<std::size_t>(m) + 2, too_large);
    for (std::int64_t j = 0; j <= std::min<std::int64_t>(m, limit); ++j)
        rows_[static_cast<std::size_t>(j)] = static_cast<std::int32_t>(j);
    for (std::int64_t i = 1; i <= n; ++i) {
        const std::int64_t first = std::max<std::int64_t>(1, i - limit);
        const std::int64_t last = std::min(m, i + limit);
        std::int32_t diagonal = rows_[static_cast<std::size_t>(first - 1)];
        rows_[static_cast<std::size_t>(first - 1)] =
            first == 1 ? static_cast<std::int32_t>(std::min<std::int64_t>(i, too_large))
                       : too_large;
        for (std::int64_t j = first; j <= last; ++j) {
            const auto at = static_cast<std::size_t>(j);
            const std::int32_t cost =
                source[static_cast<std::size_t>(i - 1)] == target[at - 1] ? 0 : 1;
            const std::int32_t here = MinOf3(rows_[at] + 1, rows_[at - 1] + 1, diagonal + cost);
            diagonal = rows_[at];
            rows_[at] = here;
        }
    }
    return rows_[static_cast<std::size_t>(m)] <= limit;
}

}  // namespace wordhawk
