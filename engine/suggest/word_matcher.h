#pragma once

#include "dict/dictionary_file.h"
#include "engine/suggest/cLS.h"
#include "engine/suggest/suggestions.h"

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// Tests the candidates of dictionary files against one word. Every test is a pure filter, so the
/// cheap ones that turn most candidates away come first, whatever order a reader would expect:
/// length and letters, key, distance, score.
class WordMatcher {
  public:
    WordMatcher(std::wstring_view word, const SuggestionRules& rules, const AnsiCodePage& page);

    /// Whether a candidate of this length with these letters may pass: false only when its score or
    /// its distance cannot reach the limits.
    bool LettersMayPass(std::size_t length, std::uint64_t mask) const {
        if (length < shortest_ || length > longest_) return false;
        const LetterLimits& limits = limits_[length < limits_.size() ? length : limits_.size() - 1];
        const int missing = __builtin_popcountll(mask_ & ~mask);
        const int extra = __builtin_popcountll(mask & ~mask_);
        return (missing <= limits.blocks_missing && extra <= limits.blocks_extra) ||
               (missing <= limits.wildcard_missing && extra <= limits.wildcard_extra) ||
               mask == kUnknownLetters;
    }

    /// Score of a candidate that passes the key, distance and score tests; none when it does not.
    std::optional<std::int32_t> Score(std::string_view candidate, std::uint64_t mask,
                                      std::int32_t key);

    std::int32_t Key() const { return key_; }
    /// Pairs of letters that the measures had to look at so far, by their own bounds.
    std::uint64_t Work() const { return work_; }
    const std::wstring& LowerWord() const { return lower_; }

  private:
    /// How many of the word's letters may miss in a candidate of one length, and how many others it
    /// may have, when its score comes from common blocks or from the wildcard. -1: cannot pass.
    struct LetterLimits {
        std::int8_t blocks_missing = -1;
        std::int8_t blocks_extra = -1;
        std::int8_t wildcard_missing = -1;
        std::int8_t wildcard_extra = -1;
        /// Characters in common blocks without which the blocks' share stays below the threshold.
        std::int32_t common_needed = 0;
    };
    static constexpr std::int8_t kAny = 64;
    static constexpr LetterLimits kNoLimits = {kAny, kAny, kAny, kAny, 0};

    /// What a candidate's key means for it.
    enum class KeyTest { TurnedAway, ScoresNothing, Passes };

    LetterLimits LimitsForLength(std::int32_t length) const;
    void LimitLengths();
    KeyTest TestKey(std::int32_t key) const;
    bool IsNear(std::string_view candidate);
    std::int32_t PassingScore(std::string_view candidate, std::uint64_t mask, std::int32_t key);
    std::int32_t PlainDistance(std::string_view candidate) const;
    std::int32_t LongestCommonSubsequence(std::string_view candidate) const;
    double PlainWildcardRatio(std::string_view candidate) const;
    std::int32_t PlainScore(std::string_view candidate) const;

    const AnsiCodePage& page_;
    SuggestionRules rules_;
    std::wstring word_;
    std::wstring lower_;
    std::string lower_bytes_;
    std::int32_t key_;
    std::wstring key_pattern_;
    /// The lower-cased word is bytes of the page that stand for themselves, 64 at the most.
    bool plain_;
    /// The distance can be counted in bit-parallel steps.
    bool plain_distance_;
    std::uint64_t mask_;
    /// Bit i of entry b: character i of the word, as typed or in lower case, is byte b.
    std::array<std::uint64_t, 256> typed_places_{};
    std::array<std::uint64_t, 256> lower_places_{};
    /// Lengths that a candidate may have, whatever its letters.
    std::size_t shortest_ = 0;
    std::size_t longest_ = std::numeric_limits<std::size_t>::max();
    /// By candidate length; the last entry serves all longer ones.
    std::vector<LetterLimits> limits_;
    cLS distance_;
    std::uint64_t work_ = 0;
};

}  // namespace wordhawk
