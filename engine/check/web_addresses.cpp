#include "engine/check/web_addresses.h"

#include <algorithm>
#include <array>

namespace wordhawk {
namespace {

// In the order in which they are searched.
constexpr std::array<std::wstring_view, 12> kPrefixes = {
    L"http:", L"https:",    L"ftp:",    L"mailto:", L"file:", L"gopher:",
    L"nntp:", L"prospero:", L"telnet:", L"news:",   L"wais:", L"www."};

/// Start of the first address prefix at or behind `from`, npos when there is none. Every prefix
/// ends in a mark that it holds nowhere else, so the first mark found belongs to the first prefix.
std::size_t FindPrefix(std::wstring_view text, std::size_t from) {
    for (std::size_t mark = from; mark < text.size(); ++mark) {
        if (text[mark] != L':' && text[mark] != L'.') continue;
        for (const std::wstring_view prefix : kPrefixes) {
            const std::size_t letters = prefix.size() - 1;
            if (mark >= from + letters &&
                text.compare(mark - letters, prefix.size(), prefix) == 0) {
                return mark - letters;
            }
        }
    }
    return std::wstring_view::npos;
}

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

bool AddressBlanker::MayHoldAddress(std::wstring_view block) {
    return FindPrefix(block, 0) != std::wstring_view::npos;
}

void AddressBlanker::Known::Add(std::wstring_view address) {
    std::uint32_t node = 0;
    for (const wchar_t c : address) {
        const auto next = static_cast<std::uint32_t>(address_at_node.size());
        const auto [step, added] =
            steps.try_emplace(std::uint64_t{node} << 16 | static_cast<std::uint16_t>(c), next);
        if (added) address_at_node.push_back(-1);
        node = step->second;
    }
    address_at_node[node] = static_cast<std::int32_t>(addresses.size());
    addresses.emplace_back(address);
}

std::int32_t AddressBlanker::Known::EarliestAtStartOf(std::wstring_view text) const {
    std::int32_t earliest = -1;
    std::uint32_t node = 0;
    for (const wchar_t c : text) {
        const auto step = steps.find(std::uint64_t{node} << 16 | static_cast<std::uint16_t>(c));
        if (step == steps.end()) break;
        node = step->second;
        const std::int32_t found = address_at_node[node];
        if (found >= 0 && (earliest < 0 || found < earliest)) earliest = found;
    }
    return earliest;
}

void AddressBlanker::Blank(std::wstring& block, std::vector<Range>* ranges) {
    for (std::size_t at = FindPrefix(block, 0); at != std::wstring::npos;) {
        const auto end_at = std::find_if(block.begin() + static_cast<std::ptrdiff_t>(at),
                                         block.end(), IsAddressEnd);
        const auto end = static_cast<std::size_t>(end_at - block.begin());
        BlankRun(block, at, end, ranges);
        at = FindPrefix(block, end);
    }
}

void AddressBlanker::BlankRun(std::wstring& block, std::size_t begin, std::size_t end,
                              std::vector<Range>* ranges) {
    known_.resize(kPrefixes.size());
    const std::wstring_view run(block.data() + begin, end - begin);
    for (std::size_t which = 0; which < kPrefixes.size(); ++which) {
        const std::wstring_view prefix = kPrefixes[which];
        Known& known = known_[which];
        std::size_t first = run.find(prefix);
        while (first != std::wstring_view::npos) {
            // Known addresses go in the order in which they were met; what then still begins with
            // the prefix is a new one.
            std::int32_t earliest = -1;
            for (std::size_t at = first; at != std::wstring_view::npos;
                 at = run.find(prefix, at + 1)) {
                const std::int32_t here = known.EarliestAtStartOf(run.substr(at));
                if (here >= 0 && (earliest < 0 || here < earliest)) earliest = here;
            }
            if (earliest < 0) {
                earliest = static_cast<std::int32_t>(known.addresses.size());
                known.Add(run.substr(first, run.find(L' ', first) - first));
            }
            const std::wstring& address = known.addresses[static_cast<std::size_t>(earliest)];
            for (std::size_t at = run.find(address); at != std::wstring_view::npos;
                 at = run.find(address, at + address.size())) {
                std::fill_n(block.begin() + static_cast<std::ptrdiff_t>(begin + at), address.size(),
                            L' ');
                if (ranges != nullptr) ranges->push_back({begin + at, address.size()});
            }
            first = run.find(prefix);
        }
    }
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
