#include "engine/check/check_pass.h"

#include "engine/check/text_checker.h"
#include "lang/modLoadRes.h"

#include <algorithm>

namespace wordhawk {
namespace {

// Lines are handed over in groups of about this many units: often enough for a cancel to be felt at
// once, seldom enough not to slow the pass.
constexpr std::size_t kGroupUnits = 32 * 1024;

/// End of the group of whole lines that starts at `from`.
std::size_t EndOfGroup(std::wstring_view text, std::size_t from) {
    if (text.size() - from <= kGroupUnits) return text.size();
    const std::size_t line_end = text.find_first_of(L"\r\n", from + kGroupUnits);
    if (line_end == std::wstring_view::npos) return text.size();
    return line_end + 1;
}

/// Line breaks in `text`: CR, LF, or CR LF as one. `after_cr` carries a CR at the end of one piece
/// to the next.
std::size_t CountLineBreaks(std::wstring_view text, bool& after_cr) {
    std::size_t breaks = 0;
    for (const wchar_t c : text) {
        if (c == L'\r' || (c == L'\n' && !after_cr)) ++breaks;
        after_cr = c == L'\r';
    }
    return breaks;
}

}  // namespace

CheckResult CheckText(std::wstring_view text, DictionaryStore& store, const SplitRules& rules,
                      Progress& progress) {
    bool& cancel = store.State().CancelFlag;
    cancel = false;
    bool after_cr = false;
    const std::size_t line_count = text.empty() ? 0 : CountLineBreaks(text, after_cr) + 1;
    after_cr = false;
    std::size_t line = 1;
    progress.SetRange(line_count);

    TextChecker checker(store, rules);
    for (std::size_t from = 0; from < text.size();) {
        progress.SetCaption(L"Checking line (" + std::to_wstring(line) + L" of " +
                            std::to_wstring(line_count) + L")");
        progress.SetPosition(line);
        if (progress.YieldAndAskCancel()) cancel = true;
        if (cancel) break;
        const std::size_t end = EndOfGroup(text, from);
        const std::wstring_view group = text.substr(from, end - from);
        checker.Feed(group, [](const UnknownWord&) {});
        line += CountLineBreaks(group, after_cr);
        from = end;
    }
    return {checker.Words(), cancel};
}

}  // namespace wordhawk
