#include "engine/check/web_addresses.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <queue>

namespace wordhawk {
namespace {

// In the order in which they are searched.
constexpr std::array<std::wstring_view, 12> kPrefixes = {
    L"http:", L"https:",    L"ftp:",    L"mailto:", L"file:", L"gopher:",
    L"nntp:", L"prospero:", L"telnet:", L"news:",   L"wais:", L"www."};

constexpr std::size_t kUnitsAtOnce = 32;

/// Whether one of kUnitsAtOnce units may end a prefix: a colon, or a full stop behind a "w"; there
/// is a unit before them. Looks at all of them, in numbers of their own size, which the compiler
/// has the processor do side by side.
template <class Unit>
bool MayHoldMark(const Unit* units) {
    const Unit* const before = units - 1;
    Unit holds = 0;
    for (std::size_t i = 0; i < kUnitsAtOnce; ++i) {
        const Unit is_colon = units[i] == ':' ? 1 : 0;
        const Unit is_stop = units[i] == '.' ? 1 : 0;
        const Unit is_behind_w = before[i] == 'w' ? 1 : 0;
        holds = static_cast<Unit>(holds | is_colon | (is_stop & is_behind_w));
    }
    return holds != 0;
}

/// Start of the first address prefix at or behind `from`, npos when there is none. Every prefix
/// ends in a mark that it holds nowhere else, so the first mark found belongs to the first prefix.
template <class Unit>
std::size_t FindPrefix(std::basic_string_view<Unit> text, std::size_t from) {
    for (std::size_t mark = from + 1; mark < text.size();) {
        const std::size_t end = std::min(mark + kUnitsAtOnce, text.size());
        if (end - mark == kUnitsAtOnce && !MayHoldMark(text.data() + mark)) mark = end;
        for (; mark < end; ++mark) {
            if (text[mark] != ':' && text[mark] != '.') continue;
            for (const std::wstring_view prefix : kPrefixes) {
                const std::size_t letters = prefix.size() - 1;
                if (mark >= from + letters && prefix[letters - 1] == text[mark - 1] &&
                    std::equal(prefix.begin(), prefix.end(), text.data() + mark - letters)) {
                    return mark - letters;
                }
            }
        }
    }
    return text.npos;
}

template <class Unit>
std::vector<AddressBlanker::Range> FindRunsIn(std::basic_string_view<Unit> block) {
    std::vector<AddressBlanker::Range> runs;
    for (std::size_t at = FindPrefix(block, 0); at != block.npos;) {
        const auto end_at = std::find_if(block.begin() + static_cast<std::ptrdiff_t>(at),
                                         block.end(), IsAddressEnd);
        const auto end = static_cast<std::size_t>(end_at - block.begin());
        runs.push_back({at, end - at});
        at = FindPrefix(block, end);
    }
    return runs;
}

/// Blanks the addresses with one prefix in one run between end characters.
///
/// The known addresses go first, each wherever it stands, in the order they were met; then what
/// begins with the first prefix that is left is a new address, up to the next blank, and so on.
/// This order need not be kept across a run: whether an address found at a place goes is decided by
/// those found at places that it overlaps. So places are looked at from left to right, one cluster
/// of overlapping addresses at a time, and each only once or twice, however long the run.
class PrefixPass {
  public:
    PrefixPass(std::wstring& block, std::size_t begin, std::size_t end,
               std::vector<AddressBlanker::Range>* ranges)
        : block_(block), begin_(begin), end_(end), ranges_(ranges) {}

    /// `hashes` are those of the run, or empty to be made.
    void Blank(std::wstring_view prefix, KnownAddresses& known, StretchHashes& hashes) {
        const std::wstring_view run(block_.data() + begin_, end_ - begin_);
        places_.clear();
        for (std::size_t at = run.find(prefix); at != std::wstring_view::npos;
             at = run.find(prefix, at + prefix.size())) {
            places_.push_back(begin_ + at);
        }
        if (places_.empty()) return;
        if (hashes.Empty()) hashes.Append(run);
        PushPieces();
        while (!pieces_.empty()) {
            const Piece piece = pieces_.back();
            pieces_.pop_back();
            BlankPiece(piece, known, hashes);
        }
    }

  private:
    /// A stretch without blanks; offsets in the block.
    struct Piece {
        std::size_t begin;
        std::size_t end;
    };
    /// A known address at a place, the one to go first being the greatest.
    struct Candidate {
        KnownAddresses::Match match;
        std::size_t place;
        std::size_t End() const { return place + match.length; }
        bool operator<(const Candidate& other) const {
            return match.number != other.match.number ? match.number > other.match.number
                                                      : place > other.place;
        }
    };

    /// The pieces of the run, the first on top.
    void PushPieces() {
        for (std::size_t end = end_; end > begin_;) {
            std::size_t begin = end;
            while (begin > begin_ && block_[begin - 1] != L' ') --begin;
            if (begin < end) pieces_.push_back({begin, end});
            end = begin > begin_ ? begin - 1 : begin_;
        }
    }

    void BlankPiece(const Piece& piece, KnownAddresses& known, const StretchHashes& hashes) {
        auto place = std::lower_bound(places_.begin(), places_.end(), piece.begin);
        if (place == places_.end() || *place >= piece.end) return;
        const std::size_t first = *place;
        taken_.clear();
        std::size_t cluster_end = piece.end;
        for (; place != places_.end() && *place < cluster_end && !known.Empty(); ++place) {
            const auto match = known.EarliestAt(hashes, *place - begin_, piece.end - *place);
            if (!match) continue;
            const Candidate candidate{*match, *place};
            cluster_end =
                candidates_.empty() ? candidate.End() : std::max(cluster_end, candidate.End());
            candidates_.push(candidate);
        }
        while (!candidates_.empty()) {
            const Candidate candidate = candidates_.top();
            candidates_.pop();
            Decide(candidate, known, hashes);
        }
        const std::size_t new_end = taken_.empty() ? piece.end : taken_.begin()->first;
        if (first < new_end) {
            known.Add(std::wstring_view(block_).substr(first, new_end - first));
            Overwrite(first, new_end);
        }
        // What is left between those that went and behind them, the first on top.
        std::size_t end = piece.end;
        for (auto taken = taken_.rbegin(); taken != taken_.rend(); ++taken) {
            if (taken->second < end) pieces_.push_back({taken->second, end});
            end = taken->first;
        }
    }

    /// Takes the candidate when nothing before it took any of it, else looks for a shorter one.
    void Decide(const Candidate& candidate, const KnownAddresses& known,
                const StretchHashes& hashes) {
        const std::size_t place = candidate.place;
        const auto behind = taken_.upper_bound(place);
        if (behind != taken_.begin() && std::prev(behind)->second > place) return;
        if (behind != taken_.end() && behind->first < candidate.End()) {
            const auto shorter = known.EarliestAt(hashes, place - begin_, behind->first - place);
            if (shorter) candidates_.push({*shorter, place});
            return;
        }
        // Unlike addresses with one hash are as good as impossible; no word goes by them all the
        // same.
        if (block_.compare(place, candidate.match.length, known.Address(candidate.match.number)) !=
            0) {
            return;
        }
        taken_.emplace(place, candidate.End());
        Overwrite(place, candidate.End());
    }

    void Overwrite(std::size_t begin, std::size_t end) {
        std::fill_n(block_.begin() + static_cast<std::ptrdiff_t>(begin), end - begin, L' ');
        if (ranges_ != nullptr) ranges_->push_back({begin, end - begin});
    }

    std::wstring& block_;
    const std::size_t begin_;
    const std::size_t end_;
    std::vector<AddressBlanker::Range>* const ranges_;
    std::vector<std::size_t> places_;  // of the prefix, in the block
    std::vector<Piece> pieces_;        // to be looked at
    std::priority_queue<Candidate> candidates_;
    std::map<std::size_t, std::size_t> taken_;  // begin and end of what went in a cluster
};

}  // namespace

bool IsAddressEnd(wchar_t c) {
    switch (c) {
        case L' ':
        case L'\r':
        case L'\n':
        case L'\t':
        case L'"':
        case L')':
        case L',':
        case L';':
        case L'<':
        case L'>':
        case L'[':
        case L']':
        case L'{':
        case L'|':
        case L'}': return true;
        default: return false;
    }
}

std::vector<AddressBlanker::Range> AddressBlanker::FindRuns(std::wstring_view block) {
    return FindRunsIn(block);
}

std::vector<AddressBlanker::Range> AddressBlanker::FindRuns(std::string_view ascii) {
    return FindRunsIn(ascii);
}

void AddressBlanker::BlankRuns(std::wstring& block, const std::vector<Range>& runs,
                               std::vector<Range>* ranges) {
    known_.resize(kPrefixes.size());
    for (const Range& run : runs) {
        run_hashes_.Clear();
        PrefixPass pass(block, run.offset, run.offset + run.length, ranges);
        for (std::size_t which = 0; which < kPrefixes.size(); ++which) {
            pass.Blank(kPrefixes[which], known_[which], run_hashes_);
        }
    }
}

void AddressBlanker::BlankRuns(std::string& ascii, const std::vector<Range>& runs) {
    std::wstring wide(ascii.begin(), ascii.end());
    std::vector<Range> blanked;
    BlankRuns(wide, runs, &blanked);
    for (const auto& [offset, length] : blanked) ascii.replace(offset, length, length, ' ');
}

std::wstring RemoveWebAddresses(std::wstring_view text) {
    std::wstring blanked(text);
    std::vector<AddressBlanker::Range> ranges;
    AddressBlanker().Blank(blanked, &ranges);
    std::sort(ranges.begin(), ranges.end(),
              [](const auto& a, const auto& b) { return a.offset < b.offset; });
    std::wstring result;
    result.reserve(text.size());
    std::size_t done = 0;
    for (const AddressBlanker::Range& range : ranges) {
        result.append(text, done, range.offset - done).push_back(L' ');
        done = range.offset + range.length;
    }
    return result.append(text, done);
}

}  // namespace wordhawk
