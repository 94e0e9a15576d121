#include "engine/document/line_ends.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <unordered_map>

namespace wordhawk {
namespace {

std::wstring_view Characters(LineEnds line_ends) {
    switch (line_ends) {
        case LineEnds::CrLf: return L"\r\n";
        case LineEnds::Lf: return L"\n";
        case LineEnds::Cr: break;
    }
    return L"\r";
}

/// Calls `take` with each line and how it ends; the last one ends in nothing (null).
template <class Take>
void ForEachLine(std::wstring_view text, Take take) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != L'\r' && text[i] != L'\n') continue;
        const bool pair = text[i] == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n';
        const LineEnds end = pair ? LineEnds::CrLf : text[i] == L'\n' ? LineEnds::Lf : LineEnds::Cr;
        take(text.substr(start, i - start), &end);
        i += pair;
        start = i + 1;
    }
    take(text.substr(start), nullptr);
}

std::vector<std::wstring_view> LinesOf(std::wstring_view text) {
    std::vector<std::wstring_view> lines;
    ForEachLine(text, [&](std::wstring_view line, const LineEnds*) { lines.push_back(line); });
    return lines;
}

using Lines = std::span<const std::wstring_view>;

/// Finds for each line of an edited text the line that it was.
class Matching {
  public:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    Matching(Lines before, Lines after)
        : before_(before), after_(after), match_(after.size(), kNone) {}

    std::vector<std::size_t> Run() {
        Part whole{0, before_.size(), 0, after_.size()};
        MatchEnds(whole);
        // Corrections leave the number of lines as it is.
        if (whole.BeforeSize() == whole.AfterSize()) {
            MatchInOrder(whole);
            return std::move(match_);
        }
        Part gap = whole;
        for (const auto& [old_line, new_line] : Landmarks(whole)) {
            gap.before_end = old_line;
            gap.after_end = new_line;
            MatchEnds(gap);
            MatchInOrder(gap);
            match_[new_line] = old_line;
            gap = {old_line + 1, whole.before_end, new_line + 1, whole.after_end};
        }
        MatchEnds(gap);
        MatchInOrder(gap);
        return std::move(match_);
    }

  private:
    struct Part {
        std::size_t before_start, before_end, after_start, after_end;
        std::size_t BeforeSize() const { return before_end - before_start; }
        std::size_t AfterSize() const { return after_end - after_start; }
    };
    using Landmark = std::pair<std::size_t, std::size_t>;

    /// Matches equal lines at the part's ends and takes them off it.
    void MatchEnds(Part& part) {
        const auto any_left = [&] { return part.BeforeSize() > 0 && part.AfterSize() > 0; };
        while (any_left() && before_[part.before_start] == after_[part.after_start]) {
            match_[part.after_start++] = part.before_start++;
        }
        while (any_left() && before_[part.before_end - 1] == after_[part.after_end - 1]) {
            match_[--part.after_end] = --part.before_end;
        }
    }

    void MatchInOrder(const Part& part) {
        const std::size_t count = std::min(part.BeforeSize(), part.AfterSize());
        for (std::size_t i = 0; i < count; ++i) {
            match_[part.after_start + i] = part.before_start + i;
        }
    }

    /// Pairs of equal lines that occur once in either text, in the order of both: the longest run
    /// of pairs that rises.
    std::vector<Landmark> Landmarks(const Part& part) const {
        struct Places {
            std::size_t before = 0, after = 0;
            int before_count = 0, after_count = 0;
        };
        std::unordered_map<std::wstring_view, Places> places;
        for (std::size_t i = part.before_start; i < part.before_end; ++i) {
            Places& line = places[before_[i]];
            line.before = i;
            ++line.before_count;
        }
        for (std::size_t i = part.after_start; i < part.after_end; ++i) {
            const auto line = places.find(after_[i]);
            if (line == places.end()) continue;
            line->second.after = i;
            ++line->second.after_count;
        }
        std::vector<Landmark> pairs;
        for (const auto& [line, where] : places) {
            if (where.before_count == 1 && where.after_count == 1) {
                pairs.emplace_back(where.before, where.after);
            }
        }
        std::sort(pairs.begin(), pairs.end());
        return LongestRise(pairs);
    }

    static std::vector<Landmark> LongestRise(const std::vector<Landmark>& pairs) {
        std::vector<std::size_t> ends;  // of runs, by length: the pair that ends lowest
        std::vector<std::size_t> previous(pairs.size(), kNone);
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            const auto place = std::lower_bound(
                ends.begin(), ends.end(), pairs[i].second,
                [&](std::size_t end, std::size_t after) { return pairs[end].second < after; });
            if (place != ends.begin()) previous[i] = *(place - 1);
            if (place == ends.end()) {
                ends.push_back(i);
            } else {
                *place = i;
            }
        }
        std::vector<Landmark> rise;
        for (std::size_t i = ends.empty() ? kNone : ends.back(); i != kNone; i = previous[i]) {
            rise.push_back(pairs[i]);
        }
        std::reverse(rise.begin(), rise.end());
        return rise;
    }

    Lines before_;
    Lines after_;
    std::vector<std::size_t> match_;
};

}  // namespace

std::wstring WithLineEnds(std::wstring_view text, LineEnds line_ends) {
    std::wstring result;
    result.reserve(text.size() + text.size() / 32);
    ForEachLine(text, [&](std::wstring_view line, const LineEnds* end) {
        result += line;
        if (end != nullptr) result += Characters(line_ends);
    });
    return result;
}

LineEndMemory::LineEndMemory(std::wstring_view text) {
    std::array<std::size_t, 3> count{};
    ForEachLine(text, [&](std::wstring_view, const LineEnds* end) {
        if (end != nullptr) ++count[static_cast<std::size_t>(*end)];
    });
    const auto most = std::max_element(count.begin(), count.end());
    most_used_ = static_cast<LineEnds>(most - count.begin());
    if (count[0] + count[1] + count[2] == *most) return;
    lines_ = WithLineEnds(text, LineEnds::Cr);
    ForEachLine(text, [&](std::wstring_view, const LineEnds* end) {
        if (end != nullptr) ends_.push_back(*end);
    });
}

std::wstring LineEndMemory::Restore(std::wstring_view edited) const {
    if (ends_.empty()) return WithLineEnds(edited, most_used_);
    const std::vector<std::wstring_view> before = LinesOf(lines_);
    const std::vector<std::wstring_view> after = LinesOf(edited);
    const std::vector<std::size_t> match = Matching(before, after).Run();
    std::wstring result;
    result.reserve(edited.size() + after.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        result += after[i];
        if (i + 1 == after.size()) break;
        // The last line of all ended in nothing.
        const bool known = match[i] < ends_.size();
        LineEnds end = known ? ends_[match[i]] : most_used_;
        // Behind a CR, an empty line that ends in LF would become a part of that end.
        const bool would_join = end == LineEnds::Lf && !result.empty() && result.back() == L'\r';
        if (would_join) end = LineEnds::CrLf;
        result += Characters(end);
    }
    return result;
}

}  // namespace wordhawk
