#include "dict/dictionary_file.h"

#include "dict/lines.h"
#include "dict/sorted_lines.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>

namespace wordhawk {
namespace {

constexpr std::array<bool, 256> MakeEntryStops() {
    std::array<bool, 256> stops{};
    stops[','] = stops['\r'] = stops['\n'] = true;
    return stops;
}

constexpr std::array<bool, 256> kStopsEntry = MakeEntryStops();

// An offset and one more bit must fit 32 bits, with 0 left to mark a free slot.
constexpr std::size_t kMostIndexedBytes = std::numeric_limits<std::uint32_t>::max() / 2 - 1;

/// A word of eight or nine letters, comma, key and line end; only room is reserved by it.
constexpr std::size_t kUsualEntryBytes = 16;

/// Making the index takes about as long as so many look-ups without it that find nothing.
constexpr int kAskedBeforeIndex = 5;

constexpr std::uint64_t kEachByte = 0x0101010101010101;

/// The highest bit of the lowest byte that is `byte`, and bits above it; 0 where none is.
constexpr std::uint64_t Matches(std::uint64_t eight, unsigned char byte) {
    const std::uint64_t differences = eight ^ byte * kEachByte;
    return (differences - kEachByte) & ~differences & 0x80 * kEachByte;
}

/// The first byte from `at` on that ends an entry's word, or `end`.
const char* EndOfWord(const char* at, const char* end) {
    if constexpr (std::endian::native == std::endian::little) {
        for (; end - at >= 8; at += 8) {
            std::uint64_t eight;
            std::memcpy(&eight, at, 8);
            const std::uint64_t stops =
                Matches(eight, ',') | Matches(eight, '\r') | Matches(eight, '\n');
            if (stops != 0) return at + std::countr_zero(stops) / 8;
        }
    }
    while (at != end && !kStopsEntry[static_cast<unsigned char>(*at)]) ++at;
    return at;
}

/// The byte behind the first LF from `at` on, or `end`.
const char* BehindNextLineFeed(const char* at, const char* end) {
    // Mostly a comma, five digits, CR and LF: within one word of the machine.
    if constexpr (std::endian::native == std::endian::little) {
        if (end - at >= 8) {
            std::uint64_t eight;
            std::memcpy(&eight, at, 8);
            const std::uint64_t feeds = Matches(eight, '\n');
            if (feeds != 0) return at + std::countr_zero(feeds) / 8 + 1;
        }
    }
    const auto* feed =
        static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
    return feed != nullptr ? feed + 1 : end;
}

bool HoldsPattern(std::string_view bytes, std::string_view pattern) {
    if (bytes.size() < pattern.size()) return false;
    // A few bytes of the pattern are looked for in many places at once, which a compiler does for
    // several in one step; where all stand, the whole is compared. The words of a file begin alike,
    // so the bytes behind the middle tell most.
    constexpr std::size_t kPlaces = 64;
    const std::array<std::size_t, 3> picked = {pattern.size() / 2,
                                               std::min(pattern.size() / 2 + 1, pattern.size() - 1),
                                               pattern.size() >= 2 ? pattern.size() - 2 : 0};
    const std::size_t places = bytes.size() - pattern.size() + 1;
    const auto stands_at = [&](std::size_t place) {
        return std::memcmp(bytes.data() + place, pattern.data(), pattern.size()) == 0;
    };
    std::size_t start = 0;
    for (; places - start >= kPlaces; start += kPlaces) {
        const char* const a = bytes.data() + start + picked[0];
        const char* const b = bytes.data() + start + picked[1];
        const char* const c = bytes.data() + start + picked[2];
        unsigned char least_difference = 255;
        for (std::size_t i = 0; i < kPlaces; ++i) {
            const auto difference = static_cast<unsigned char>((a[i] ^ pattern[picked[0]]) |
                                                               (b[i] ^ pattern[picked[1]]) |
                                                               (c[i] ^ pattern[picked[2]]));
            least_difference = std::min(least_difference, difference);
        }
        if (least_difference != 0) continue;
        for (std::size_t i = 0; i < kPlaces; ++i) {
            if (c[i] == pattern[picked[2]] && stands_at(start + i)) return true;
        }
    }
    while (start < places && !stands_at(start)) ++start;
    return start < places;
}

/// The lookup by its definition, for the words and files that the index does not cover and for the
/// first words asked of a file, which are not worth an index.
bool FoundInBytes(std::string_view bytes, std::string_view word, EntryForms forms) {
    std::string pattern;
    pattern.reserve(word.size() + 2);
    pattern.append("\n").append(word).append(",");
    if (HoldsPattern(bytes, pattern)) return true;
    if (bytes.substr(0, word.size() + 1) == std::string_view(pattern).substr(1)) return true;
    if (forms == EntryForms::KeyedOnly) return false;
    pattern.back() = '\r';
    return HoldsPattern(bytes, pattern);
}

}  // namespace

bool DictionaryFile::Contains(std::string_view word, EntryForms forms) const {
    const bool is_plain = std::none_of(word.begin(), word.end(), [](char c) {
        return kStopsEntry[static_cast<unsigned char>(c)];
    });
    if (!is_plain) return FoundInBytes(bytes_, word, forms);
    return ContainsHashed(word, HashBytes(word), forms);
}

bool DictionaryFile::ContainsHashed(std::string_view word, std::uint32_t hash,
                                    EntryForms forms) const {
    if (!indexed_) {
        // What is found so is there; most words that are asked for are.
        if (FoundByHalves(bytes_, word)) return true;
        if (!word.empty() && word == missed_ && forms == missed_form_) return false;
        if (asked_ < kAskedBeforeIndex) {
            ++asked_;
            if (FoundInBytes(bytes_, word, forms)) return true;
            missed_ = word;
            missed_form_ = forms;
            return false;
        }
        BuildIndex();
    }
    if (slots_.empty())
        return bytes_.size() > kMostIndexedBytes && FoundInBytes(bytes_, word, forms);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = hash & mask; slots_[i].place != 0; i = (i + 1) & mask) {
        if (slots_[i].hash != hash || !Holds(slots_[i], word)) continue;
        return forms == EntryForms::KeyedAndBare || !slots_[i].IsBare();
    }
    return false;
}

bool DictionaryFile::Holds(const Slot& slot, std::string_view word) const {
    const std::size_t offset = slot.Offset();
    // Neither text holds a comma or CR, so equal beginnings and the stop make them the same entry.
    return word.size() < bytes_.size() - offset &&
           bytes_[offset + word.size()] == (slot.IsBare() ? '\r' : ',') &&
           std::memcmp(bytes_.data() + offset, word.data(), word.size()) == 0;
}

void DictionaryFile::BuildIndex() const {
    indexed_ = true;
    if (bytes_.size() > kMostIndexedBytes) return;
    std::vector<Slot> entries;
    entries.reserve(bytes_.size() / kUsualEntryBytes);
    const char* const begin = bytes_.data();
    const char* const end = begin + bytes_.size();
    for (const char* start = begin; start != end;) {
        const char* const at = EndOfWord(start, end);
        if (at == end) break;
        if (*at == ',' || (*at == '\r' && start != begin)) {
            const auto place = static_cast<std::uint32_t>(1 + 2 * (start - begin) + (*at == '\r'));
            const std::string_view word(start, static_cast<std::size_t>(at - start));
            entries.push_back({HashBytes(word), place});
        }
        start = BehindNextLineFeed(at, end);
    }
    if (entries.empty()) return;
    slots_.assign(std::bit_ceil(2 * entries.size()), Slot{});
    for (const Slot& entry : entries) AddToIndex(entry);
}

void DictionaryFile::AddToIndex(Slot slot) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t i = slot.hash & mask;
    for (; slots_[i].place != 0; i = (i + 1) & mask) {
        if (slots_[i].hash != slot.hash) continue;
        const std::size_t stop = bytes_.find(slot.IsBare() ? '\r' : ',', slot.Offset());
        if (!Holds(slots_[i], {bytes_.data() + slot.Offset(), stop - slot.Offset()})) continue;
        // One slot a word; the keyed form answers for both kinds of lookup.
        if (slots_[i].IsBare()) slots_[i] = slot;
        return;
    }
    slots_[i] = slot;
}

std::size_t DictionaryFile::CountEntries() const {
    std::size_t entries = 0;
    ForEachLine(bytes_, [&](std::string_view line) { entries += !line.empty(); });
    return entries;
}

}  // namespace wordhawk
