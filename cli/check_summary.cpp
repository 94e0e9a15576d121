#include "cli/check_summary.h"

#include "platform/text.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace wordhawk {
namespace {

/// As many as a person wants to read of.
constexpr std::size_t kMostUnreadable = 3;

}  // namespace

void CheckSummary::Write(std::string_view lines) {
    if (options_.format == CheckFormat::Lines || options_.format == CheckFormat::Json) {
        out_ << lines;
        return;
    }
    while (!lines.empty()) {
        const std::string_view line = lines.substr(0, lines.find('\n'));
        lines.remove_prefix(line.size() + 1);
        if (options_.format == CheckFormat::Count) {
            Count(line);
            continue;
        }
        if (options_.format == CheckFormat::List && !listed_.Add(line)) continue;
        // As text, so that a terminal shows what it could not bear.
        out_ << FromUtf8(line) << '\n';
    }
}

void CheckSummary::Add(const SideBySide::Result& result) {
    found_ = found_ || result.found;
    // Each thread, and each text, meets a dictionary that cannot be read; once is enough.
    std::string lines;
    if (!result.error_line.empty() && told_.insert(result.error_line).second)
        lines += result.error_line;
    for (const std::string& line : result.unreadable) {
        if (unreadable_.insert(line).second && unreadable_.size() <= kMostUnreadable) lines += line;
    }
    failed_ = failed_ || !result.error_line.empty() || !result.unreadable.empty();
    if (lines.empty()) return;
    out_.Flush();
    ShowMessageLine(lines);
}

void CheckSummary::Count(std::string_view line) {
    const std::size_t tab = line.rfind('\t');
    std::uint64_t count = 0;
    std::from_chars(line.data() + tab + 1, line.data() + line.size(), count);
    counts_[std::string(line.substr(0, tab))] += count;
}

/// In the order that "LC_ALL=C sort" gives whole lines.
void CheckSummary::WriteCounts() {
    std::vector<std::string> lines;
    lines.reserve(counts_.size());
    for (const auto& [word, count] : counts_) lines.push_back(word + '\t' + std::to_string(count));
    counts_.clear();
    std::sort(lines.begin(), lines.end());
    for (const std::string& line : lines) {
        const std::size_t tab = line.rfind('\t');
        out_ << FromUtf8(std::string_view(line).substr(0, tab))
             << std::string_view(line).substr(tab) << '\n';
    }
}

int CheckSummary::Finish() {
    WriteCounts();
    out_.Flush();
    if (unreadable_.size() > kMostUnreadable) {
        ShowMessageLine(MessageLine(std::to_string(unreadable_.size() - kMostUnreadable) +
                                    " more dictionary files cannot be read"));
    }
    if (failed_ || out_.Failed()) return kExitFailed;
    const bool report = !options_.exit_zero && options_.format != CheckFormat::Words;
    return found_ && report ? kExitFound : kExitFine;
}

}  // namespace wordhawk
