#pragma once

#include "dict/dictionary_store.h"
#include "engine/check/word_scanner.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace wordhawk {

/// One occurrence of a word that no dictionary holds. Views are valid during the callback only.
struct UnknownWord {
    /// Index of the word in TextChecker::Words(); 0 when that list is not kept.
    std::size_t index;
    /// Not met before, or so long ago that it was forgotten.
    bool is_new;
    /// Lower-cased, as the list shows it.
    std::wstring_view listed;
    /// As it stands in the text.
    std::wstring_view text;
    /// In UTF-16 units from the start of the first block; as many units long as `text`.
    std::uint64_t offset;
};

/// Which unknown words a checker remembers: every one, in its list, or only those that it met
/// lately, so that its memory has a limit whatever the text.
enum class Remember { All, Lately };

/// Checks a text that comes in blocks.
class TextChecker {
  public:
    /// The store must outlive the checker; with setting SuggFromMain only main dictionaries count.
    TextChecker(DictionaryStore& store, const SplitRules& rules, Remember remember = Remember::All);

    /// Calls `sink(const UnknownWord&)` for every occurrence of an unknown word, in text order.
    /// A block ends behind a space or a line break, or is the last.
    template <class Sink>
    void Feed(std::wstring_view block, Sink&& sink) {
        Expect(block.size());
        scanner_.Scan(block, [&](const ScannedWord& word) {
            if (IsKnownAtOnce(word)) return;
            const Verdict verdict = Judge(word.text);
            if (verdict.index >= 0) {
                sink(UnknownWord{static_cast<std::size_t>(verdict.index), verdict.is_new, lower_,
                                 word.text, word.offset});
            }
        });
    }

    /// The same for a block that is all ASCII: its bytes. Blocks of both kinds may follow one
    /// another.
    template <class Sink>
    void FeedAscii(std::string_view block, Sink&& sink) {
        Expect(block.size());
        scanner_.ScanAscii(block, [&](const AsciiWord& word) {
            if (IsKnownAtOnce(word)) return;
            widened_.assign(word.text.begin(), word.text.end());
            const Verdict verdict = Judge(widened_);
            if (verdict.index >= 0) {
                sink(UnknownWord{static_cast<std::size_t>(verdict.index), verdict.is_new, lower_,
                                 widened_, word.offset});
            }
        });
    }

    /// Calls `sink(const ScannedWord&, bool known)` for every word.
    template <class Sink>
    void FeedAll(std::wstring_view block, Sink&& sink) {
        Expect(block.size());
        scanner_.Scan(block, [&](const ScannedWord& word) {
            sink(word, IsKnownAtOnce(word) || Judge(word.text).index < 0);
        });
    }

    /// UTF-16 units that were fed so far.
    std::uint64_t Consumed() const { return scanner_.Consumed(); }

    /// The distinct unknown words so far, in the order in which they were met; none when they are
    /// remembered only lately.
    const std::vector<std::wstring>& Words() const { return words_; }

  private:
    /// Says how much text comes next.
    void Expect(std::size_t units) {
        if (scanner_.Consumed() + units <= kShortText || recent_bits_ == kMostRecentBits) return;
        recent_bits_ = kMostRecentBits;
        recent_.assign(std::size_t{1} << (kMostRecentBits - 1), {});
    }
    /// Whether the quick look does for the word and finds it.
    template <class Unit>
    bool IsKnownAtOnce(const WordOf<Unit>& word) {
        if (word.bytes.empty() || may_be_forbidden_[static_cast<unsigned char>(word.bytes[0])])
            return false;
        const bool packs = word.packed != PackedWord{};
        if (!packs) return store_.IsInMain(word.bytes);
        const std::uint64_t hash = (word.packed.low ^ word.packed.high) * 0x9E3779B97F4A7C15u;
        RecentPair& recent = recent_[hash >> (65 - recent_bits_)];
        if (recent.last == word.packed) return true;
        if (recent.before == word.packed) {
            std::swap(recent.last, recent.before);
            return true;
        }
        if (!store_.IsInMain(word.bytes)) return false;
        recent.before = recent.last;
        recent.last = word.packed;
        return true;
    }
    struct Verdict {
        /// The word's place in the list (added when new), or -1 when a dictionary holds it.
        std::int64_t index;
        bool is_new;
    };
    /// Leaves the lower-cased word in `lower_`.
    Verdict Judge(std::wstring_view text);
    /// The verdict on `lower_`, which is remembered.
    Verdict JudgeLower();
    /// Whether `lower_` is known, or would be if it were written as `word`.
    bool IsKnown(const std::wstring& word);
    enum class Kept { Always, ForAWhile };
    void Keep(const std::wstring& word, std::int64_t index, Kept how_long);
    void ForgetOldVerdicts();

    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::wstring_view text) const {
            return std::hash<std::wstring_view>()(text);
        }
    };

    // Some ten thousand words make up nearly all of any text; these stay in the processor's cache.
    // A short text, which would get another page of memory for nearly every word, has fewer places.
    static constexpr int kMostRecentBits = 15;
    static constexpr int kFewRecentBits = 7;
    static constexpr std::size_t kShortText = 4096;

    /// Of the words that choose one place, the two that were met last.
    struct RecentPair {
        PackedWord last;
        PackedWord before;
    };

    DictionaryStore& store_;
    Remember remember_;
    Scope scope_;
    bool straight_apostrophe_;
    /// Whether a word may be known with a capital and unknown without, as compounds are.
    bool capital_matters_;
    /// By the first byte of a word.
    std::array<bool, 256> may_be_forbidden_{};
    WordScanner scanner_;
    /// Words lately found in the main dictionary, each in the place that its bytes choose.
    std::vector<RecentPair> recent_ = std::vector<RecentPair>(1 << (kFewRecentBits - 1));
    /// How many words there is room for, as a power of two.
    int recent_bits_ = kFewRecentBits;
    std::wstring lower_;
    std::wstring widened_;
    /// `lower_` with the capital that it has in the text.
    std::wstring capitalized_;
    std::vector<std::wstring> words_;
    /// Words that needed more than the quick look, lower-cased but for a first letter that matters:
    /// index in the list, or -1.
    std::unordered_map<std::wstring, std::int64_t, Hash, std::equal_to<>> verdicts_;
    std::size_t passing_verdicts_ = 0;
    /// Units of the words with a passing verdict.
    std::size_t passing_units_ = 0;
};

}  // namespace wordhawk
