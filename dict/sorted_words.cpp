#include "dict/sorted_words.h"

#include <algorithm>
#include <charconv>

namespace wordhawk {

std::optional<unsigned> SortedWords::ValueOf(std::string_view word) const {
    // Line starts are found from any place by going back to the line end before it.
    const std::string_view all = bytes_;
    std::size_t low = 0;
    std::size_t high = all.size();
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        const std::size_t feed = middle == 0 ? all.npos : all.rfind('\n', middle - 1);
        const std::size_t start = std::max(feed == all.npos ? 0 : feed + 1, low);
        const std::size_t stop = std::min(all.find('\n', start), all.size());
        const std::string_view line = all.substr(start, stop - start);
        const std::size_t comma = std::min(line.find(','), line.size());
        const int order = word.compare(line.substr(0, comma));
        if (order == 0) {
            unsigned value = 0;
            const char* const from = line.data() + std::min(comma + 1, line.size());
            const auto read = std::from_chars(from, line.data() + line.size(), value);
            return read.ec == std::errc() ? std::optional(value) : std::nullopt;
        }
        if (order < 0) {
            high = start;
        } else {
            low = stop + 1;
        }
    }
    return std::nullopt;
}

std::string SortedWords::Make(std::vector<std::pair<std::string, unsigned>> words) {
    std::sort(words.begin(), words.end());
    std::string bytes;
    for (const auto& [word, value] : words) bytes += word + ',' + std::to_string(value) + "\r\n";
    return bytes;
}

}  // namespace wordhawk
