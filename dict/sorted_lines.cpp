#include "dict/sorted_lines.h"

#include "platform/partial_file.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace wordhawk {
namespace {

/// Less than 0 where the line that begins at `start` stands before an entry, 0 where it is one.
int CompareLine(std::string_view bytes, std::size_t start, std::string_view entry) {
    return bytes.compare(start, entry.size(), entry);
}

/// Where the line that holds the byte `at` begins, `from` at the earliest.
std::size_t LineStart(std::string_view bytes, std::size_t from, std::size_t at) {
    while (at > from && bytes[at - 1] != '\n') --at;
    return at;
}

std::size_t NextLine(std::string_view bytes, std::size_t at) {
    const std::size_t feed = bytes.find('\n', at);
    return feed == bytes.npos ? bytes.size() : feed + 1;
}

bool FindByHalves(std::string_view bytes, std::string_view entry) {
    std::size_t low = 0;
    std::size_t high = bytes.size();
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        const std::size_t line = LineStart(bytes, low, middle);
        const int order = CompareLine(bytes, line, entry);
        if (order == 0) return true;
        if (order < 0) {
            low = NextLine(bytes, middle);
        } else {
            high = line;
        }
    }
    return false;
}

}  // namespace

bool FoundByHalves(std::string_view bytes, std::string_view word) {
    return FindByHalves(bytes, std::string(word) + ',');
}

bool FoundByHalvesIn(const Path& path, std::string_view word) {
    const auto file = PartialFile::Open(path);
    if (!file) return false;
    const std::string entry = std::string(word) + ',';
    std::array<char, 8192> room;
    // Both begin lines, the second as far as the file has not changed meanwhile.
    std::uint64_t low = 0;
    std::uint64_t high = file->Size();
    while (low < high) {
        const bool is_last = high - low <= room.size();
        const std::uint64_t from = is_last ? low : low + (high - low - room.size()) / 2;
        const std::string_view part(room.data(), file->ReadAt(from, room));
        const std::size_t first = from == low ? 0 : NextLine(part, 0);
        const std::size_t behind_last = LineStart(part, first, part.size());
        if (is_last || first >= behind_last) return FindByHalves(part.substr(first), entry);
        if (CompareLine(part, first, entry) > 0) {
            high = from + first;
        } else if (CompareLine(part, LineStart(part, first, behind_last - 1), entry) < 0) {
            low = from + behind_last;
        } else {
            return FindByHalves(part.substr(first), entry);
        }
    }
    return false;
}

}  // namespace wordhawk
