#include "engine/suggest/word_matcher.h"

#include "dict/phonetic_key.h"
#include "engine/suggest/modSimPercent.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::size_t kBits = 64;

bool IsFiveDigits(std::int32_t key) { return key >= 10'000 && key <= 99'999; }

/// A pattern that keys must match: which digits agree with those of the word's own key.
std::wstring KeyPattern(std::int32_t key, std::uint8_t search_mode) {
    const std::wstring text = std::to_wstring(key);
    if (search_mode == 2) return text.substr(0, 4) + L"#";
    if (search_mode <= 1) return text.substr(0, 2) + L"##" + text.back();
    return {};
}

std::int8_t Clamped(std::int32_t value) {
    return static_cast<std::int8_t>(std::clamp(value, -1, 64));
}

}  // namespace

WordMatcher::WordMatcher(std::wstring_view word, const SuggestionRules& rules,
                         const AnsiCodePage& page)
    : page_(page),
      rules_(rules),
      word_(word),
      lower_(Lower(word)),
      lower_bytes_(page.Encode(lower_)),
      key_(GetPhoneticKey(lower_, page)),
      key_pattern_(KeyPattern(key_, rules.search_mode)),
      mask_(LetterMask(lower_bytes_)) {
    const auto in_page = [&page](wchar_t c) { return page.ToByteOrNone(c) >= 0; };
    plain_ = lower_.size() <= kBits && std::all_of(lower_.begin(), lower_.end(), in_page) &&
             !modSimPercent::HoldsPatternCharacter(lower_);
    plain_distance_ = !rules.count_swaps && word_.size() <= kBits;
    for (std::size_t i = 0; i < std::min(word_.size(), kBits); ++i) {
        const int typed = page.ToByteOrNone(word_[i]);
        if (typed >= 0) typed_places_[static_cast<std::size_t>(typed)] |= std::uint64_t{1} << i;
        lower_places_[static_cast<unsigned char>(lower_bytes_[i])] |= std::uint64_t{1} << i;
    }
    const std::size_t lengths = plain_ ? 2 * lower_.size() + 16 : 0;
    for (std::size_t length = 0; length < lengths; ++length) {
        limits_.push_back(LimitsForLength(static_cast<std::int32_t>(length)));
    }
    limits_.push_back(kNoLimits);
    LimitLengths();
}

void WordMatcher::LimitLengths() {
    const auto own = static_cast<std::int64_t>(word_.size());
    if (!rules_.count_swaps) {
        // Each letter more or less is an edit.
        shortest_ = static_cast<std::size_t>(std::max(own - rules_.diversity, std::int64_t{0}));
        const std::int64_t longest = own + rules_.diversity;
        longest_ = longest < 0 ? 0 : static_cast<std::size_t>(longest);
        return;
    }
    // A distance with swaps says nothing about lengths, but the score does: a shorter candidate
    // lies wholly in common blocks at best, and the wildcard stands for one letter at least.
    const auto reaches = [&](std::size_t length) {
        return modSimPercent::PercentOf(
                   static_cast<std::int32_t>(length), static_cast<std::int32_t>(own),
                   static_cast<std::int32_t>(length), -1.0) >= rules_.score_threshold;
    };
    if (rules_.score_threshold <= 0 || lower_.find_first_of(L"*[") != std::wstring::npos) return;
    std::size_t too_short = 0;
    std::size_t enough = word_.size() - 1;
    while (too_short + 1 < enough) {
        const std::size_t middle = too_short + (enough - too_short) / 2;
        (reaches(middle) ? enough : too_short) = middle;
    }
    shortest_ = enough;
}

WordMatcher::LetterLimits WordMatcher::LimitsForLength(std::int32_t length) const {
    const auto own = static_cast<std::int32_t>(lower_.size());
    LetterLimits limits;
    std::int32_t needed = 0;
    const std::int32_t most = std::min(own, length);
    while (needed <= most &&
           modSimPercent::PercentOf(needed, own, length, -1.0) < rules_.score_threshold) {
        ++needed;
    }
    limits.common_needed = needed;
    if (needed <= most) {
        limits.blocks_missing = Clamped(own - needed);
        limits.blocks_extra = Clamped(length - needed);
    }
    const double wildcard = length == own ? 1.0 : static_cast<double>(own - 1) / own;
    if (length >= own - 1 &&
        modSimPercent::PercentOf(0, own, length, wildcard) >= rules_.score_threshold) {
        limits.wildcard_missing = 1;
        limits.wildcard_extra = kAny;
    }
    if (plain_distance_) {
        // An edit takes away at most one letter and brings in at most one.
        const bool possible = std::abs(own - length) <= rules_.diversity;
        const std::int8_t edits = possible ? Clamped(rules_.diversity) : std::int8_t{-1};
        if (word_ == lower_ || !possible) {
            limits.blocks_missing = std::min(limits.blocks_missing, edits);
            limits.blocks_extra = std::min(limits.blocks_extra, edits);
            limits.wildcard_missing = std::min(limits.wildcard_missing, edits);
            limits.wildcard_extra = std::min(limits.wildcard_extra, edits);
        }
    }
    return limits;
}

WordMatcher::KeyTest WordMatcher::TestKey(std::int32_t key) const {
    const auto test = [](bool passes, KeyTest otherwise) {
        return passes ? KeyTest::Passes : otherwise;
    };
    const bool usual = IsFiveDigits(key) && IsFiveDigits(key_);
    switch (rules_.search_mode) {
        case 0:
            return test(usual ? key / 1000 == key_ / 1000 && key % 10 == key_ % 10
                              : modSimPercent::LikePattern(std::to_wstring(key), key_pattern_),
                        KeyTest::TurnedAway);
        case 1:
            // The pattern is of no use as a number, so it lets every key through; it is the score
            // that looks at three digits.
            return test(usual ? key / 100 == key_ / 100 : modSimPercent::KeysAgree(key, key_, 1),
                        KeyTest::ScoresNothing);
        case 2:
            if (usual) return test(key / 10 == key_ / 10, KeyTest::TurnedAway);
            if (!modSimPercent::LikePattern(std::to_wstring(key), key_pattern_))
                return KeyTest::TurnedAway;
            return test(modSimPercent::KeysAgree(key, key_, 2), KeyTest::ScoresNothing);
        default: return KeyTest::TurnedAway;
    }
}

std::int32_t WordMatcher::PlainDistance(std::string_view candidate) const {
    // Vertical differences of one matrix column, a bit for each character of the word (Myers 1999).
    std::uint64_t plus = ~std::uint64_t{0};
    std::uint64_t minus = 0;
    auto distance = static_cast<std::int32_t>(word_.size());
    const std::uint64_t last = std::uint64_t{1} << (word_.size() - 1);
    for (const char c : candidate) {
        const std::uint64_t equal = typed_places_[static_cast<unsigned char>(c)];
        const std::uint64_t diagonal = (((equal & plus) + plus) ^ plus) | equal | minus;
        std::uint64_t right_plus = minus | ~(diagonal | plus);
        std::uint64_t right_minus = plus & diagonal;
        if ((right_plus & last) != 0) ++distance;
        if ((right_minus & last) != 0) --distance;
        right_plus = (right_plus << 1) | 1;
        right_minus <<= 1;
        plus = right_minus | ~(diagonal | right_plus);
        minus = right_plus & diagonal;
    }
    return distance;
}

std::int32_t WordMatcher::LongestCommonSubsequence(std::string_view candidate) const {
    std::uint64_t rest = ~std::uint64_t{0};
    for (const char c : candidate) {
        const std::uint64_t matches = rest & lower_places_[static_cast<unsigned char>(c)];
        rest = (rest + matches) | (rest - matches);
    }
    const std::uint64_t own =
        lower_.size() == kBits ? ~std::uint64_t{0} : (std::uint64_t{1} << lower_.size()) - 1;
    return __builtin_popcountll(~rest & own);
}

double WordMatcher::PlainWildcardRatio(std::string_view candidate) const {
    const std::size_t own = lower_bytes_.size();
    const std::size_t shorter = std::min(own, candidate.size());
    std::size_t front = 0;
    while (front < shorter && lower_bytes_[front] == candidate[front]) ++front;
    std::size_t back = 0;
    while (back < shorter && lower_bytes_[own - 1 - back] == candidate[candidate.size() - 1 - back])
        ++back;
    const bool matches = candidate.size() + 1 >= own && front + back + 1 >= own;
    const int count = (matches ? static_cast<int>(own) : 0) - (candidate.size() == own ? 0 : 1);
    return static_cast<double>(count) / static_cast<double>(own);
}

std::int32_t WordMatcher::PlainScore(std::string_view candidate) const {
    if (candidate == lower_bytes_) return 100;
    const auto own = static_cast<std::int32_t>(lower_bytes_.size());
    const auto length = static_cast<std::int32_t>(candidate.size());
    const double wildcard = PlainWildcardRatio(candidate);
    // Different words of one length never reach full marks by blocks, so nothing beats this.
    if (wildcard == 1.0) return modSimPercent::PercentOf(0, own, length, wildcard);
    const LetterLimits& limits = limits_[std::min(candidate.size(), limits_.size() - 1)];
    std::int32_t common = 0;
    if (LongestCommonSubsequence(candidate) >= limits.common_needed) {
        common = modSimPercent::CommonCharCount(lower_bytes_, candidate, 1, own, 1, length);
    }
    return modSimPercent::PercentOf(common, own, length, wildcard);
}

bool WordMatcher::IsNear(std::string_view candidate) {
    if (plain_distance_) return PlainDistance(candidate) <= rules_.diversity;
    const std::wstring text = page_.Decode(candidate);
    if (!rules_.count_swaps) {
        work_ += word_.size() * (2 * static_cast<std::uint64_t>(rules_.diversity) + 1);
        return distance_.IsWithin(word_, text, rules_.diversity);
    }
    work_ += std::uint64_t{word_.size()} * candidate.size();
    return distance_.LevenshteinDistance(word_, text, Transposition::OneEdit) <= rules_.diversity;
}

std::int32_t WordMatcher::PassingScore(std::string_view candidate, std::uint64_t mask,
                                       std::int32_t key) {
    const bool lower_candidate = mask != kUnknownLetters;
    if (plain_ && lower_candidate) return PlainScore(candidate);
    work_ += std::uint64_t{word_.size()} * (candidate.size() + 1);
    return modSimPercent::SimilarityPercent(lower_, page_.Decode(candidate), key, key_,
                                            rules_.search_mode, page_);
}

std::optional<std::int32_t> WordMatcher::Score(std::string_view candidate, std::uint64_t mask,
                                               std::int32_t key) {
    const KeyTest test = TestKey(key);
    if (test == KeyTest::TurnedAway) return std::nullopt;
    if (test == KeyTest::ScoresNothing && rules_.score_threshold > 0) return std::nullopt;
    // Counting bits is cheaper than a score, and for a long word any distance is.
    const bool distance_first = plain_distance_ || word_.size() > kBits;
    if (distance_first && !IsNear(candidate)) return std::nullopt;
    const std::int32_t score =
        test == KeyTest::ScoresNothing ? 0 : PassingScore(candidate, mask, key);
    if (score < rules_.score_threshold) return std::nullopt;
    if (!distance_first && !IsNear(candidate)) return std::nullopt;
    return score;
}

}  // namespace wordhawk
