#pragma once

#include "dict/dictionary_file.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace wordhawk {

/// Longer words are in no table.
inline constexpr std::size_t kLongestTableWord = 64;

/// Whether a table may hold the word: it is in lower case, as words are looked up, of such a
/// length, and has nothing in it that ends an entry of a dictionary file.
bool FitsTable(std::string_view word, const AnsiCodePage& page);

/// Many words behind one another, each found by its hash. A view of memory that others keep; where
/// that holds numbers that point anywhere, the answers are wrong and nothing else happens.
class WordTable {
  public:
    using Number = std::uint32_t;

    WordTable() = default;
    /// Word i stands in `text` from offsets[i] to offsets[i + 1]; `slots` are those of SlotsOf.
    WordTable(std::span<const Number> slots, std::span<const Number> offsets, std::string_view text)
        : slots_(slots), offsets_(offsets), text_(text), number_bits_(NumberBits(WordCount())) {}

    std::uint32_t WordCount() const {
        return offsets_.empty() ? 0 : static_cast<std::uint32_t>(offsets_.size() - 1);
    }
    std::string_view Word(std::uint32_t i) const {
        const auto size = static_cast<Number>(text_.size());
        const Number start = std::min(offsets_[i], size);
        const Number end = std::min(offsets_[i + 1], size);
        return text_.substr(start,
                            std::min<std::size_t>(end - std::min(start, end), kLongestTableWord));
    }

    /// The number of a word whose DictionaryFile::HashBytes is known; none when it is not there.
    std::optional<std::uint32_t> Find(std::string_view word, std::uint32_t hash) const {
        const std::size_t mask = slots_.size() - 1;
        for (std::size_t looked = 0; looked < slots_.size(); ++looked) {
            const Number slot = slots_[(hash + looked) & mask];
            if (slot == 0) break;
            if ((slot ^ hash) >> number_bits_ != 0) continue;
            const Number number = (slot & NumberMask()) - 1;
            if (number < WordCount() && Word(number) == word) return number;
        }
        return std::nullopt;
    }

    /// How many slots there are for so many words, as a power of two.
    static unsigned SlotBits(std::uint32_t words) {
        return static_cast<unsigned>(std::bit_width(words + std::uint64_t{words} / 3 + 1));
    }
    static std::vector<Number> SlotsOf(std::span<const Number> offsets, std::string_view text);

  private:
    /// A slot is 0, or the number of a word plus one below the upper bits of its hash, which save
    /// looking at most other words.
    static unsigned NumberBits(std::uint32_t words) {
        return std::min(static_cast<unsigned>(std::bit_width(words)), 31U);
    }
    Number NumberMask() const { return (Number{1} << number_bits_) - 1; }

    std::span<const Number> slots_;
    std::span<const Number> offsets_;
    std::string_view text_;
    unsigned number_bits_ = 0;
};

}  // namespace wordhawk
