#include "dict/dictionary_file.h"
#include "dict/lines.h"

#include <algorithm>
#include <cassert>
#include <functional>
#include <unordered_map>
#include <utility>

namespace wordhawk {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
using Lines = std::vector<std::string_view>;

/// Orders lines by the UTF-16 codes of their characters without decoding them.
class LineOrder {
  public:
    explicit LineOrder(const AnsiCodePage& page) {
        for (unsigned byte = 0; byte < 256; ++byte) {
            code_[byte] =
                static_cast<std::uint16_t>(page.ToUnicode(static_cast<unsigned char>(byte)));
        }
    }

    bool operator()(std::string_view a, std::string_view b) const {
        const std::size_t common = std::min(a.size(), b.size());
        for (std::size_t i = 0; i < common; ++i) {
            if (a[i] != b[i]) return Code(a[i]) < Code(b[i]);
        }
        return a.size() < b.size();
    }

    /// The first four codes as one number: settles most comparisons of a sort.
    std::uint64_t Prefix(std::string_view line) const {
        std::uint64_t prefix = 0;
        for (std::size_t i = 0; i < 4; ++i)
            prefix = (prefix << 16) | (i < line.size() ? Code(line[i]) : 0u);
        return prefix;
    }

    void Sort(Lines& lines) const {
        struct Keyed {
            std::uint64_t prefix;
            std::string_view line;
        };
        std::vector<Keyed> keyed;
        keyed.reserve(lines.size());
        for (const std::string_view line : lines) keyed.push_back({Prefix(line), line});
        std::sort(keyed.begin(), keyed.end(), [this](const Keyed& a, const Keyed& b) {
            return a.prefix != b.prefix ? a.prefix < b.prefix : (*this)(a.line, b.line);
        });
        std::transform(keyed.begin(), keyed.end(), lines.begin(),
                       [](const Keyed& k) { return k.line; });
    }

  private:
    std::uint16_t Code(char c) const { return code_[static_cast<unsigned char>(c)]; }

    std::uint16_t code_[256];
};

std::string_view WithoutLineEnd(std::string_view entry_line) {
    assert(entry_line.ends_with(kLineEnd));
    return entry_line.substr(0, entry_line.size() - kLineEnd.size());
}

std::string Joined(const Lines& lines) {
    std::size_t size = 0;
    for (const std::string_view line : lines) size += line.size() + kLineEnd.size();
    std::string bytes;
    bytes.reserve(size);
    for (const std::string_view line : lines) bytes.append(line).append(kLineEnd);
    return bytes;
}

/// The lines of a file that is being added to, and which of the new entries it already holds.
class Addition {
  public:
    Addition(std::string_view bytes, const std::vector<std::string>& entry_lines,
             const LineOrder& order)
        : order_(order) {
        for (const std::string& entry : entry_lines) present_.emplace(WithoutLineEnd(entry), 0);
        bool first = true;
        ForEachLine(bytes, [&](std::string_view line) {
            if (std::exchange(first, false)) first_line_ = line;
            if (line.empty()) return;
            lines_.push_back(line);
            if (const auto found = present_.find(line); found != present_.end()) ++found->second;
        });
        in_order_ = std::is_sorted(lines_.begin(), lines_.end(), order_);
    }

    void Add(std::string_view entry, dictionary_edit::SortMoment moment) {
        int& present = present_.at(entry);
        const bool hidden = first_line_ == entry;
        if (present - (hidden ? 1 : 0) > 0) return;
        ++present;
        added_.push_back(entry);
        if (moment == dictionary_edit::SortMoment::AfterEachEntry) {
            MoveSmallestToFront(entry);
        } else if (!first_line_) {
            first_line_ = entry;
        }
    }

    bool IsEmpty() const { return added_.empty(); }

    std::string Finish() {
        const auto middle = static_cast<std::ptrdiff_t>(lines_.size());
        if (in_order_) {
            order_.Sort(added_);
            lines_.insert(lines_.end(), added_.begin(), added_.end());
            std::inplace_merge(lines_.begin(), lines_.begin() + middle, lines_.end(), order_);
        } else {
            lines_.insert(lines_.end(), added_.begin(), added_.end());
            order_.Sort(lines_);
        }
        return Joined(lines_);
    }

  private:
    /// What sorting the whole file does to its first line.
    void MoveSmallestToFront(std::string_view entry) {
        if (!sorted_once_) {
            const auto smallest = std::min_element(lines_.begin(), lines_.end(), order_);
            first_line_ = smallest == lines_.end() ? entry : *smallest;
            sorted_once_ = true;
        }
        if (order_(entry, *first_line_)) first_line_ = entry;
    }

    const LineOrder& order_;
    Lines lines_;
    bool in_order_ = false;
    Lines added_;
    /// How often each new entry stands in the file by now.
    std::unordered_map<std::string_view, int> present_;
    std::optional<std::string_view> first_line_;
    bool sorted_once_ = false;
};

}  // namespace

int SortLines(std::vector<std::wstring>& lines, std::ptrdiff_t first, std::ptrdiff_t last) {
    const auto size = static_cast<std::ptrdiff_t>(lines.size());
    if (first < 0 || last >= size || first > last + 1) return 1;
    std::sort(lines.begin() + first, lines.begin() + (last + 1));
    return 0;
}

namespace dictionary_edit {

bool HasEntryBelowFirstLine(std::string_view bytes, std::string_view entry_line) {
    const std::string_view entry = WithoutLineEnd(entry_line);
    bool first = true;
    bool found = false;
    ForEachLine(bytes, [&](std::string_view line) {
        if (!std::exchange(first, false)) found |= line == entry;
    });
    return found;
}

std::optional<std::string> WithEntries(std::string_view bytes,
                                       const std::vector<std::string>& entry_lines,
                                       const AnsiCodePage& page, SortMoment moment) {
    const LineOrder order(page);
    Addition addition(bytes, entry_lines, order);
    for (const std::string& entry : entry_lines) addition.Add(WithoutLineEnd(entry), moment);
    if (addition.IsEmpty()) return std::nullopt;
    return addition.Finish();
}

std::string SortedDistinct(std::string_view bytes, const AnsiCodePage& page) {
    Lines lines;
    ForEachLine(bytes, [&](std::string_view line) {
        if (!line.empty()) lines.push_back(line);
    });
    LineOrder(page).Sort(lines);
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return Joined(lines);
}

std::optional<std::string> WithoutEntry(std::string_view bytes, std::string_view entry) {
    Lines lines;
    bool removed = false;
    ForEachLine(bytes, [&](std::string_view line) {
        if (!removed && line == entry && !line.empty()) {
            removed = true;
        } else if (!line.empty()) {
            lines.push_back(line);
        }
    });
    if (!removed) return std::nullopt;
    return Joined(lines);
}

}  // namespace dictionary_edit
}  // namespace wordhawk
