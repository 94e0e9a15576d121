#pragma once

#include "dict/dictionary_store.h"
#include "engine/check/word_scanner.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
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
        scanner_.Scan(block, [&](const ScannedWord& word) {
            if (IsKnownAtOnce(word)) return;
            const Verdict verdict = Judge(word.text);
            if (verdict.index >= 0) {
                sink(UnknownWord{static_cast<std::size_t>(verdict.index), verdict.is_new, lower_,
                                 word.text, word.offset});
            }
        });
    }

    /// Calls `sink(const ScannedWord&, bool known)` for every word.
    template <class Sink>
    void FeedAll(std::wstring_view block, Sink&& sink) {
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
    /// Whether the quick look does for the word and finds it.
    bool IsKnownAtOnce(const ScannedWord& word) {
        return !word.bytes.empty() &&
               !may_be_forbidden_[static_cast<unsigned char>(word.bytes[0])] && IsInMain(word);
    }
    bool IsInMain(const ScannedWord& word) {
        const bool packs = word.packed != PackedWord{};
        PackedWord& recent = recent_[(word.packed.low ^ word.packed.high) * 0x9E3779B97F4A7C15u >>
                                     (64 - kRecentBits)];
        if (packs && recent == word.packed) return true;
        const DictionaryFile& file = store_.MainFileOfBytes(
            static_cast<unsigned char>(word.bytes[0]), static_cast<unsigned char>(word.bytes[1]));
        if (!file.ContainsHashed(word.bytes, DictionaryFile::HashBytes(word.bytes),
                                 EntryForms::KeyedOnly)) {
            return false;
        }
        if (packs) recent = word.packed;
        return true;
    }
    struct Verdict {
        /// The word's place in the list (added when new), or -1 when a dictionary holds it.
        std::int64_t index;
        bool is_new;
    };
    /// Leaves the lower-cased word in `lower_`.
    Verdict Judge(std::wstring_view text);
    bool IsKnown(const std::wstring& lower_word);
    void ForgetOldVerdicts();

    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::wstring_view text) const {
            return std::hash<std::wstring_view>()(text);
        }
    };

    // Some ten thousand words make up nearly all of any text; these stay in the processor's cache.
    static constexpr int kRecentBits = 15;

    struct Free {
        void operator()(PackedWord* words) const { std::free(words); }
    };
    /// Zeroed memory that the system provides page by page as it is used, so that a short text does
    /// not pay for it.
    static std::unique_ptr<PackedWord[], Free> MakeRecent();

    DictionaryStore& store_;
    Remember remember_;
    Scope scope_;
    bool straight_apostrophe_;
    /// By the first byte of a word.
    std::array<bool, 256> may_be_forbidden_{};
    WordScanner scanner_;
    /// Words lately found in the main dictionary, each in the place that its bytes choose.
    std::unique_ptr<PackedWord[], Free> recent_ = MakeRecent();
    std::wstring lower_;
    std::vector<std::wstring> words_;
    /// Lower-cased words that needed more than the quick look: index in the list, or -1.
    std::unordered_map<std::wstring, std::int64_t, Hash, std::equal_to<>> verdicts_;
    std::size_t passing_verdicts_ = 0;
    /// Units of the words with a passing verdict.
    std::size_t passing_units_ = 0;
};

}  // namespace wordhawk
