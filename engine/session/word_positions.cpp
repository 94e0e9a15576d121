#include "engine/session/word_positions.h"

#include "engine/check/word_characters.h"
#include "platform/case_mapping.h"
#include "platform/text.h"

#include <algorithm>
#include <bit>

namespace wordhawk {
namespace {

constexpr std::uint32_t kHashSeed = 2166136261u;
constexpr std::uint32_t kHashPrime = 16777619u;

std::uint16_t LowerUnit(wchar_t c) { return LowerTable()[static_cast<std::uint16_t>(c)]; }

bool WordCharacterAt(std::wstring_view text, std::size_t i) {
    return i < text.size() && IsWordCharacter(text[i]);
}

/// Whether `lower` stands at `place`, which has room for it, as far as the right boundary goes.
bool MatchesUpToItsEnd(std::wstring_view text, std::wstring_view lower, std::size_t place) {
    for (std::size_t i = 0; i < lower.size(); ++i) {
        if (LowerUnit(text[place + i]) != static_cast<std::uint16_t>(lower[i])) return false;
    }
    return !WordCharacterAt(text, place + lower.size());
}

bool StandsAt(std::wstring_view text, std::wstring_view lower, std::size_t place) {
    return place + lower.size() <= text.size() &&
           !(place > 0 && WordCharacterAt(text, place - 1)) &&
           MatchesUpToItsEnd(text, lower, place);
}

enum class Before { WordCharacter, Other };

Before BeforeOffset(std::wstring_view text, std::size_t offset) {
    return offset > 0 && WordCharacterAt(text, offset - 1) ? Before::WordCharacter : Before::Other;
}

/// `before` describes what stands before `from`, where a replacement may hide the text's own unit.
TextOffset Find(std::wstring_view text, std::wstring_view lower, std::size_t from, Before before) {
    if (lower.empty() || lower.size() > text.size()) return kNotFound;
    const auto first = static_cast<std::uint16_t>(lower.front());
    const std::size_t last_place = text.size() - lower.size();
    for (std::size_t place = from; place <= last_place; ++place) {
        if (LowerUnit(text[place]) != first) continue;
        if ((place == from ? before : BeforeOffset(text, place)) == Before::WordCharacter) continue;
        if (MatchesUpToItsEnd(text, lower, place)) return static_cast<TextOffset>(place);
    }
    return kNotFound;
}

}  // namespace

TextOffset FindWordFrom(std::wstring_view text, std::wstring_view word, std::size_t from) {
    return Find(text, Lower(word), from, BeforeOffset(text, from));
}

std::vector<std::size_t> ReplacementStarts(std::wstring_view text, std::wstring_view word,
                                           std::wstring_view replacement) {
    const std::wstring lower = Lower(word);
    std::vector<std::size_t> starts;
    std::size_t from = 0;
    Before before = Before::Other;
    for (;;) {
        const TextOffset found = Find(text, lower, from, before);
        if (found == kNotFound) return starts;
        const auto start = static_cast<std::size_t>(found);
        if (!replacement.empty()) {
            before = BeforeOffset(replacement, replacement.size());
        } else if (start != from) {
            before = BeforeOffset(text, start);
        }
        starts.push_back(start);
        from = start + lower.size();
    }
}

void WordPositions::Clear() { *this = WordPositions(); }

std::size_t WordPositions::Slot(std::uint32_t hash) const {
    return (hash ^ (hash >> 15)) & (table_.size() - 1);
}

void WordPositions::Link(Id id) {
    Id& head = table_[Slot(words_[id].hash)];
    words_[id].next = head;
    head = id + 1;
}

WordPositions::Id WordPositions::Append(std::wstring_view text) {
    const auto id = static_cast<Id>(words_.size());
    Word word;
    word.lower = Lower(text);
    longest_ = std::max(longest_, word.lower.size());
    std::size_t longest_run = 0;
    for (std::size_t i = 0; i < word.lower.size();) {
        const std::size_t start = i;
        std::uint32_t hash = kHashSeed;
        for (; WordCharacterAt(word.lower, i); ++i) {
            hash = (hash ^ static_cast<std::uint16_t>(word.lower[i])) * kHashPrime;
        }
        if (i - start > longest_run) {
            longest_run = i - start;
            word.anchor = static_cast<std::uint32_t>(start);
            word.hash = hash;
        }
        i = std::max(i, start + 1);
    }
    word.has_anchor = longest_run > 0;
    if (!word.has_anchor && !word.lower.empty()) {
        by_first_symbol_[word.lower.front()].push_back(id);
    }
    words_.push_back(std::move(word));
    if (longest_run == 0) return id;
    if (table_.size() < words_.size() * 2) {
        table_.assign(std::bit_ceil(words_.size() * 4), 0);
        for (Id other = 0; other < id; ++other) {
            if (words_[other].has_anchor) Link(other);
        }
    }
    Link(id);
    return id;
}

WordPositions::Id WordPositions::AddUnscanned(std::span<const std::wstring> words) {
    const auto first = static_cast<Id>(words_.size());
    words_.reserve(words_.size() + words.size());
    for (const std::wstring& word : words) Append(word);
    return first;
}

WordPositions::Id WordPositions::Add(std::wstring_view text, std::wstring_view document) {
    const Id id = Append(text);
    Word& word = words_[id];
    for (std::size_t from = 0;;) {
        const TextOffset place = Find(document, word.lower, from, BeforeOffset(document, from));
        if (place == kNotFound) return id;
        word.places.push_back(static_cast<std::uint32_t>(place));
        from = static_cast<std::size_t>(place) + 1;
    }
}

void WordPositions::Remove(Id id) {
    words_[id].alive = false;
    words_[id].places = {};
}

template <class Found>
void WordPositions::ScanRange(std::wstring_view text, std::size_t from, std::size_t to,
                              Found found) const {
    const auto& folded = FoldedWordCharacters();
    for (std::size_t i = from; i < to;) {
        std::uint32_t unit = folded[static_cast<std::uint16_t>(text[i])];
        if (unit == 0) {
            if (!by_first_symbol_.empty()) {
                const auto ids = by_first_symbol_.find(LowerChar(text[i]));
                if (ids != by_first_symbol_.end()) {
                    for (const Id id : ids->second) {
                        if (words_[id].alive && StandsAt(text, words_[id].lower, i)) found(id, i);
                    }
                }
            }
            ++i;
            continue;
        }
        const std::size_t start = i;
        std::uint32_t hash = kHashSeed;
        do {
            hash = (hash ^ unit) * kHashPrime;
            ++i;
        } while (i < text.size() && (unit = folded[static_cast<std::uint16_t>(text[i])]) != 0);
        if (table_.empty()) continue;
        for (Id link = table_[Slot(hash)]; link != 0; link = words_[link - 1].next) {
            const Word& word = words_[link - 1];
            if (word.hash == hash && word.alive && start >= word.anchor &&
                StandsAt(text, word.lower, start - word.anchor)) {
                found(link - 1, start - word.anchor);
            }
        }
    }
}

void WordPositions::Scan(std::wstring_view text) {
    for (Word& word : words_) word.places.clear();
    ScanRange(text, 0, text.size(), [this](Id id, std::size_t place) {
        words_[id].places.push_back(static_cast<std::uint32_t>(place));
    });
}

void WordPositions::Replaced(std::wstring_view text, std::span<const std::size_t> starts,
                             std::size_t removed, std::size_t inserted) {
    if (starts.empty()) return;
    if (starts.size() > 1 && starts.size() * longest_ > text.size()) return Scan(text);
    // A match is in question when it, or the unit before or after it, lies in what was removed or
    // is now inserted. All others stay, those behind an edit at a new offset.
    const std::size_t shift = inserted - removed;  // modulo 2^n, as are the sums with it
    for (Word& word : words_) {
        const std::size_t length = word.lower.size();
        if (word.places.empty() || word.places.back() + length < starts.front()) continue;
        auto kept = word.places.begin();
        for (const std::size_t place : word.places) {
            const auto edit = std::lower_bound(
                starts.begin(), starts.end(), place,
                [removed](std::size_t start, std::size_t at) { return start + removed < at; });
            if (edit != starts.end() && place + length >= *edit) continue;
            const auto edits_before = static_cast<std::size_t>(edit - starts.begin());
            *kept++ = static_cast<std::uint32_t>(place + edits_before * shift);
        }
        word.places.erase(kept, word.places.end());
    }
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const std::size_t start = starts[i] + i * shift;
        const std::size_t from = start > longest_ ? start - longest_ : 0;
        const std::size_t to = std::min(text.size(), start + inserted + longest_ + 1);
        ScanRange(text, from, to, [&](Id id, std::size_t place) {
            Word& word = words_[id];
            if (place + word.lower.size() < start || place > start + inserted) return;
            const auto at = std::lower_bound(word.places.begin(), word.places.end(), place);
            if (at != word.places.end() && *at == place) return;  // found beside the edit before
            word.places.insert(at, static_cast<std::uint32_t>(place));
        });
    }
}

TextOffset WordPositions::Next(Id id, TextOffset from) const {
    if (from < 0) return kNotFound;
    const auto& places = words_[id].places;
    const auto place =
        std::lower_bound(places.begin(), places.end(), static_cast<std::size_t>(from));
    return place == places.end() ? kNotFound : static_cast<TextOffset>(*place);
}

std::size_t WordPositions::Count(Id id) const { return ApartFromEachOther(words_[id]).size(); }

std::vector<std::size_t> WordPositions::ReplacementStarts(Id id, std::wstring_view text,
                                                          std::wstring_view replacement) const {
    const Word& word = words_[id];
    // Only what begins with punctuation can follow a match directly and so gain or lose its left
    // boundary by the replacement.
    if (!word.lower.empty() && IsWordCharacter(word.lower.front())) return ApartFromEachOther(word);
    return wordhawk::ReplacementStarts(text, word.lower, replacement);
}

std::vector<std::size_t> WordPositions::ApartFromEachOther(const Word& word) {
    std::vector<std::size_t> starts;
    starts.reserve(word.places.size());
    for (const std::uint32_t place : word.places) {
        if (starts.empty() || place >= starts.back() + word.lower.size()) starts.push_back(place);
    }
    return starts;
}

}  // namespace wordhawk
