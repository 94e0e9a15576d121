#include "engine/suggest/wildcard_match.h"

#include "engine/suggest/modSimPercent.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace wordhawk {
namespace {

bool MatchesOne(wchar_t pattern, wchar_t c) {
    if (pattern == L'?') return true;
    if (pattern == L'#') return c >= L'0' && c <= L'9';
    return pattern == c;
}

/// Every unit of the word matches exactly one of the candidate: what stands before the wildcard
/// matches at the front and what stands behind it at the back.
bool MatchesAtBothEnds(std::wstring_view word, std::wstring_view candidate) {
    if (candidate.size() + 1 < word.size()) return false;
    const std::size_t shorter = std::min(word.size(), candidate.size());
    std::size_t front = 0;
    while (front < shorter && MatchesOne(word[front], candidate[front])) ++front;
    std::size_t back = 0;
    while (back < shorter &&
           MatchesOne(word[word.size() - 1 - back], candidate[candidate.size() - 1 - back])) {
        ++back;
    }
    return front + back + 1 >= word.size();
}

/// Places in the candidate, a bit for each of its units and one for its end.
using Places = std::uint64_t;
constexpr std::size_t kMostUnits = 63;

/// Matches words with runs and lists for every place of the wildcard at once: the places that can
/// be reached from the front are carried along while those that lead to the end are looked up.
class PlaceSets {
  public:
    PlaceSets(std::wstring_view word, std::wstring_view candidate)
        : word_(word), candidate_(candidate), to_end_(word.size() + 1) {
        FillFromBack();
    }

    bool AnyWildcardMatches() const {
        Places reached = 1;
        for (std::size_t at = 0; at < word_.size();) {
            if (RunLeadsToEnd(reached, to_end_[at + 1])) return true;
            if (word_[at] == L'[') {
                const std::size_t close = word_.find(L']', at + 1);
                if (close == std::wstring_view::npos) return false;
                const std::vector<Places> list = ListFromBack(at + 1, close);
                if (AnyInList(list, at + 1, close, reached)) return true;
                const bool negated = IsNegated(at + 1, close);
                if (close > at + 1) reached = (reached & Matched(negated, list[negated])) << 1;
                at = close + 1;
            } else {
                reached = word_[at] == L'*' ? AtOrBehind(reached) : (reached & One(word_[at])) << 1;
                ++at;
            }
            if (reached == 0) return false;
        }
        return false;
    }

  private:
    static bool RunLeadsToEnd(Places from, Places to) {
        return from != 0 && (AtOrBehind(from) & to) != 0;
    }
    /// The lowest place and all behind it.
    static Places AtOrBehind(Places places) { return places == 0 ? 0 : ~((places & -places) - 1); }
    /// The highest place and all before it.
    static Places AtOrBefore(Places places) {
        return places == 0 ? 0 : ~Places{0} >> __builtin_clzll(places);
    }

    Places One(wchar_t pattern) const {
        return Where([pattern](wchar_t c) { return MatchesOne(pattern, c); });
    }
    Places Range(wchar_t low, wchar_t high) const {
        return Where([=](wchar_t c) { return low <= c && c <= high; });
    }
    template <class Test>
    Places Where(Test&& test) const {
        Places places = 0;
        for (std::size_t i = 0; i < candidate_.size(); ++i) {
            if (test(candidate_[i])) places |= Places{1} << i;
        }
        return places;
    }
    Places Literal(wchar_t c) const { return Range(c, c); }
    static Places Matched(bool negated, Places list) { return negated ? ~list : list; }
    bool IsNegated(std::size_t from, std::size_t close) const {
        return close - from > 1 && word_[from] == L'!';
    }

    /// From each unit of the word on: the places from which the rest, read as a pattern of its own,
    /// matches up to the end of the candidate.
    void FillFromBack() {
        to_end_[word_.size()] = Places{1} << candidate_.size();
        // What the list that ends at the next "]" matches when it is read from the unit behind, and
        // from one, two and three units further on.
        Places list[4] = {};
        std::size_t close = std::wstring_view::npos;
        for (std::size_t at = word_.size(); at-- > 0;) {
            const wchar_t c = word_[at];
            if (c == L'*') {
                to_end_[at] = AtOrBefore(to_end_[at + 1]);
            } else if (c != L'[') {
                to_end_[at] = One(c) & to_end_[at + 1] >> 1;
            } else if (close == at + 1) {
                to_end_[at] = to_end_[close + 1];
            } else if (close != std::wstring_view::npos) {
                const bool negated = IsNegated(at + 1, close);
                to_end_[at] = Matched(negated, list[negated]) & to_end_[close + 1] >> 1;
            }
            std::copy_backward(list, list + 3, list + 4);
            if (c == L']') {
                close = at;
                std::fill(list, list + 4, Places{0});
            } else if (close != std::wstring_view::npos) {
                list[0] = at + 2 < close && word_[at + 1] == L'-'
                              ? Range(c, word_[at + 2]) | list[3]
                              : Literal(c) | list[1];
            }
        }
    }

    /// What the units [from, close) of a list match, from each of them on.
    std::vector<Places> ListFromBack(std::size_t from, std::size_t close) const {
        std::vector<Places> places(close - from + 1);
        for (std::size_t at = close; at-- > from;) {
            const std::size_t i = at - from;
            places[i] = at + 2 < close && word_[at + 1] == L'-'
                            ? Range(word_[at], word_[at + 2]) | places[i + 3]
                            : Literal(word_[at]) | places[i + 1];
        }
        return places;
    }

    /// Whether the wildcard matches inside the list [from, close), or as its "]", which makes the
    /// list go on to the next one. `list` is what the list matches, from each of its units on.
    bool AnyInList(const std::vector<Places>& list, std::size_t from, std::size_t close,
                   Places reached) const {
        // A "!" negates nothing when it is the one that is replaced.
        const bool negates = word_[from] == L'!';
        const auto inside = [&](std::size_t at) { return list[at - from]; };
        if (close > from) {
            const Places first = WithWildcard(from, from, close, inside);
            if ((reached & first & to_end_[close + 1] >> 1) != 0) return true;
        }
        std::size_t at = negates ? from + 1 : from;
        Places before = 0;  // what the list matches before `at`
        for (std::size_t wild = from + 1; wild <= close; ++wild) {
            // The wildcard changes what the two units before it mean, but no more.
            for (std::size_t next = Behind(at, close); next + 2 <= wild; next = Behind(at, close)) {
                before |= next == at + 3 ? Range(word_[at], word_[at + 2]) : Literal(word_[at]);
                at = next;
            }
            if (wild == close) break;
            const Places matched = before | WithWildcard(at, wild, close, inside);
            const bool negated = negates && close - from > 1;
            if ((reached & Matched(negated, matched) & to_end_[close + 1] >> 1) != 0) return true;
        }
        const std::size_t end = word_.find(L']', close + 1);
        if (end == std::wstring_view::npos) return false;
        const std::vector<Places> added = ListFromBack(close + 1, end);
        const Places matched = before | WithWildcard(at, close, end, [&](std::size_t i) {
                                   return added[i - close - 1];
                               });
        const bool negated = negates && close > from;
        return (reached & Matched(negated, matched) & to_end_[end + 1] >> 1) != 0;
    }

    /// Where the part of a list that begins at `at` ends: three units for a range, else one.
    std::size_t Behind(std::size_t at, std::size_t close) const {
        return at + 2 < close && word_[at + 1] == L'-' ? at + 3 : at + 1;
    }

    /// What the list [first, end) matches when its unit `wild` is "*"; `rest` tells what matches
    /// from a unit behind `wild` on.
    template <class Rest>
    Places WithWildcard(std::size_t first, std::size_t wild, std::size_t end, Rest&& rest) const {
        const auto unit = [&](std::size_t i) { return i == wild ? L'*' : word_[i]; };
        Places matched = 0;
        std::size_t at = first;
        while (at <= wild) {
            const bool range = at + 2 < end && unit(at + 1) == L'-';
            matched |= range ? Range(unit(at), unit(at + 2)) : Literal(unit(at));
            at += range ? 3 : 1;
        }
        return matched | rest(at);
    }

    std::wstring_view word_;
    std::wstring_view candidate_;
    std::vector<Places> to_end_;
};

}  // namespace

bool MatchesWithOneWildcard(std::wstring_view word, std::wstring_view candidate) {
    if (word.find_first_of(L"*[") == std::wstring_view::npos)
        return MatchesAtBothEnds(word, candidate);
    if (candidate.size() <= kMostUnits) return PlaceSets(word, candidate).AnyWildcardMatches();
    std::wstring pattern(word);
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        pattern[i] = L'*';
        if (modSimPercent::LikePattern(candidate, pattern)) return true;
        pattern[i] = word[i];
    }
    return false;
}

}  // namespace wordhawk
