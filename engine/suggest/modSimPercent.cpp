#include "engine/suggest/modSimPercent.h"

#include "engine/suggest/wildcard_match.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace wordhawk::modSimPercent {
namespace {

/// Value × 100 as a whole number, ties to the even one.
std::int32_t ToPercent(double ratio) {
    const double percent = ratio * 100.0;
    const double below = std::floor(percent);
    const double rest = percent - below;
    const auto whole = static_cast<std::int32_t>(below);
    if (rest > 0.5) return whole + 1;
    if (rest < 0.5) return whole;
    return whole % 2 == 0 ? whole : whole + 1;
}

/// A piece of a text; places count from 1.
struct Piece {
    std::int32_t first;
    std::int32_t last;
    std::int64_t Length() const { return last - first + 1; }
};
struct CommonRun {
    std::int32_t in_word = 0;
    std::int32_t in_candidate = 0;
    std::int32_t length = 0;
};

char At(std::string_view text, std::int32_t place) {
    return text[static_cast<std::size_t>(place - 1)];
}

/// Start by start: the quickest way for words as they are.
CommonRun LongestRunOfShort(std::string_view word, std::string_view candidate, Piece a, Piece b) {
    CommonRun best;
    // A start too near the end to beat the best run need not be tried.
    for (std::int32_t i = a.first; i + best.length <= a.last; ++i) {
        for (std::int32_t j = b.first; j + best.length <= b.last; ++j) {
            std::int32_t k = 0;
            while (i + k <= a.last && j + k <= b.last && At(word, i + k) == At(candidate, j + k))
                ++k;
            if (k > best.length) {
                best = {i, j, k};
                if (i + k > a.last) break;
            }
        }
    }
    return best;
}

/// Each pair of places once, whatever the text: from the back, so that the run at a place is one
/// more than the run behind it.
CommonRun LongestRunOfLong(std::string_view word, std::string_view candidate, Piece a, Piece b) {
    CommonRun best;
    std::vector<std::int32_t> runs(static_cast<std::size_t>(b.Length()) + 1);
    for (std::int32_t i = a.last; i >= a.first; --i) {
        // Runs at i overwrite those at i + 1; ascending, each looks at the one not yet overwritten.
        CommonRun here;
        for (std::int32_t j = b.first; j <= b.last; ++j) {
            const auto at = static_cast<std::size_t>(j - b.first);
            runs[at] = At(word, i) == At(candidate, j) ? runs[at + 1] + 1 : 0;
            if (runs[at] > here.length) here = {i, j, runs[at]};
        }
        if (here.length > 0 && here.length >= best.length) best = here;
    }
    return best;
}

}  // namespace

bool KeysAgree(std::int32_t candidate_key, std::int32_t word_key, std::uint8_t search_mode) {
    if (search_mode != 1 && search_mode != 2) return true;
    const std::size_t digits = search_mode == 1 ? 3 : 4;
    return std::to_string(candidate_key).substr(0, digits) ==
           std::to_string(word_key).substr(0, digits);
}

bool HoldsPatternCharacter(std::wstring_view word) {
    return word.find_first_of(L"*?#[") != std::wstring_view::npos;
}

double WildcardRatio(std::wstring_view word, std::wstring_view candidate, std::int32_t word_length,
                     std::int32_t candidate_length) {
    std::int32_t count = MatchesWithOneWildcard(word, candidate) ? word_length : 0;
    if (candidate_length != word_length) --count;
    return static_cast<double>(count) / word_length;
}

std::int32_t CommonCharCount(std::string_view word, std::string_view candidate, std::int32_t first1,
                             std::int32_t last1, std::int32_t first2, std::int32_t last2) {
    if (first1 > last1 || first2 > last2 || first1 < 1 || first2 < 1) return 0;
    constexpr std::int64_t kMostPairsOfShort = 64 * 64;
    const Piece a{first1, last1};
    const Piece b{first2, last2};
    const CommonRun best = a.Length() * b.Length() <= kMostPairsOfShort
                               ? LongestRunOfShort(word, candidate, a, b)
                               : LongestRunOfLong(word, candidate, a, b);
    if (best.length == 0) return 0;
    return best.length +
           CommonCharCount(word, candidate, best.in_word + best.length, last1,
                           best.in_candidate + best.length, last2) +
           CommonCharCount(word, candidate, first1, best.in_word - 1, first2,
                           best.in_candidate - 1);
}

std::int32_t PercentOf(std::int32_t common, std::int32_t word_length, std::int32_t candidate_length,
                       double wildcard_ratio) {
    double ratio = 2.0 * (static_cast<double>(common) / (word_length + candidate_length));
    if (wildcard_ratio > ratio) ratio = wildcard_ratio == 1.0 ? 0.99 : wildcard_ratio;
    return ToPercent(ratio);
}

std::int32_t SimilarityPercent(std::wstring_view word, std::wstring_view candidate,
                               std::int32_t candidate_key, std::int32_t word_key,
                               std::uint8_t search_mode, const AnsiCodePage& page) {
    if (word.empty() || candidate.empty()) return 0;
    if (!KeysAgree(candidate_key, word_key, search_mode)) return 0;
    if (EqualIgnoringCase(word, candidate)) return 100;
    const auto a = static_cast<std::int32_t>(word.size());
    const auto b = static_cast<std::int32_t>(candidate.size());
    const std::int32_t common =
        CommonCharCount(page.Encode(Lower(word)), page.Encode(Lower(candidate)), 1, a, 1, b);
    const double wildcard = WildcardRatio(word, candidate, a, b);
    // The wildcard's count has 16 bits: a match of a longer word overflows it and ends the score.
    if (wildcard > 0.0 && a > std::numeric_limits<std::int16_t>::max()) return 0;
    return PercentOf(common, a, b, wildcard);
}

bool LikePattern(std::wstring_view text, std::wstring_view pattern) {
    std::size_t t = 0;
    std::size_t p = 0;
    // Where to go on when a later part fails: one more unit taken by the last "*".
    std::size_t star = std::wstring_view::npos;
    std::size_t star_text = 0;
    for (std::size_t open = pattern.find(L'['); open != std::wstring_view::npos;) {
        const std::size_t close = pattern.find(L']', open + 1);
        if (close == std::wstring_view::npos) return false;
        open = pattern.find(L'[', close + 1);
    }
    const auto list_matches = [](std::wstring_view list, wchar_t c) {
        const bool negated = list.size() > 1 && list.front() == L'!';
        if (negated) list.remove_prefix(1);
        bool in_list = false;
        for (std::size_t i = 0; i < list.size(); ++i) {
            if (i + 2 < list.size() && list[i + 1] == L'-') {
                in_list = in_list || (list[i] <= c && c <= list[i + 2]);
                i += 2;
            } else {
                in_list = in_list || list[i] == c;
            }
        }
        return in_list != negated;
    };
    while (true) {
        if (p < pattern.size() && pattern[p] == L'*') {
            star = ++p;
            star_text = t;
            continue;
        }
        if (p < pattern.size() && pattern[p] == L'[') {
            const std::size_t close = pattern.find(L']', p + 1);
            const std::wstring_view list = pattern.substr(p + 1, close - p - 1);
            if (list.empty()) {
                p = close + 1;
                continue;
            }
            if (t < text.size() && list_matches(list, text[t])) {
                ++t;
                p = close + 1;
                continue;
            }
        } else if (p < pattern.size() && t < text.size()) {
            const bool matches = pattern[p] == L'?' ||
                                 (pattern[p] == L'#' && text[t] >= L'0' && text[t] <= L'9') ||
                                 (pattern[p] != L'#' && pattern[p] == text[t]);
            if (matches) {
                ++t;
                ++p;
                continue;
            }
        } else if (p == pattern.size() && t == text.size()) {
            return true;
        }
        if (star == std::wstring_view::npos || star_text >= text.size()) return false;
        t = ++star_text;
        p = star;
    }
}

}  // namespace wordhawk::modSimPercent
