#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wordhawk {

/// An offset in a text, or kNotFound.
using TextOffset = std::ptrdiff_t;
inline constexpr TextOffset kNotFound = -1;

/// The first place at or behind `from` where `word` stands as a whole word, without regard to case:
/// the units before and after it (if any) are no word characters. An empty word is never found.
TextOffset FindWordFrom(std::wstring_view text, std::wstring_view word, std::size_t from);

/// Where Change All replaces: search, replace, and search again right behind the inserted text. The
/// offsets are those of the text before any replacement.
std::vector<std::size_t> ReplacementStarts(std::wstring_view text, std::wstring_view word,
                                           std::wstring_view replacement);

/// All places of many words in one text, found in one scan and kept up to date edit by edit, so
/// that a command need not search a large text once per word. Every answer equals that of
/// FindWordFrom.
class WordPositions {
  public:
    /// Names a word; stays the same until the word is removed.
    using Id = std::uint32_t;

    void Clear();
    /// Adds words without looking for them; ids count up from the first one returned. Follow with
    /// Scan.
    Id AddUnscanned(std::span<const std::wstring> words);
    /// Adds one word and looks for it.
    Id Add(std::wstring_view word, std::wstring_view text);
    void Remove(Id id);

    /// Finds all words anew.
    void Scan(std::wstring_view text);
    /// Follows a replacement: `removed` units at each of `starts` (ascending, in the text before)
    /// gave way to `inserted` ones; `text` is the text afterwards.
    void Replaced(std::wstring_view text, std::span<const std::size_t> starts, std::size_t removed,
                  std::size_t inserted);

    TextOffset First(Id id) const { return Next(id, 0); }
    /// FindWordFrom for a word of the index; a negative `from` finds nothing.
    TextOffset Next(Id id, TextOffset from) const;
    /// How often the word occurs (occurrences that overlap an earlier one not counted).
    std::size_t Count(Id id) const;
    /// The free function of that name for a word of the index.
    std::vector<std::size_t> ReplacementStarts(Id id, std::wstring_view text,
                                               std::wstring_view replacement) const;

  private:
    /// A word is found by its longest run of word characters (its anchor): such a run can match
    /// only where a run of the text begins and ends. A word without any is found by its first unit.
    struct Word {
        std::wstring lower;
        std::uint32_t anchor = 0;  ///< offset of the anchor in the word
        std::uint32_t hash = 0;    ///< of the anchor
        Id next = 0;               ///< next word of the chain, plus one
        bool has_anchor = false;
        bool alive = true;
        std::vector<std::uint32_t> places;  ///< ascending
    };

    Id Append(std::wstring_view word);
    void Link(Id id);
    std::size_t Slot(std::uint32_t hash) const;
    /// The places without those that overlap an earlier one.
    static std::vector<std::size_t> ApartFromEachOther(const Word& word);
    /// Calls `found(id, place)` for every match whose anchor starts in [from, to), in text order.
    template <class Found>
    void ScanRange(std::wstring_view text, std::size_t from, std::size_t to, Found found) const;

    std::vector<Word> words_;
    std::vector<Id> table_;  ///< by hash: first word of the chain plus one, 0 when none
    std::unordered_map<wchar_t, std::vector<Id>> by_first_symbol_;
    std::size_t longest_ = 0;
};

}  // namespace wordhawk
