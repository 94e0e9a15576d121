#include "engine/check/check_pass.h"

#include "engine/check/text_checker.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"

#include <algorithm>

namespace wordhawk {
namespace {

// Lines are handed over together until the display wants to be told, or there are so many units.
constexpr std::size_t kMostGroupUnits = 32 * 1024;

/// Behind the line break at `at`: CR, LF, or CR LF as one.
std::size_t BehindLineBreak(std::wstring_view text, std::size_t at) {
    const bool pair = text[at] == L'\r' && at + 1 < text.size() && text[at + 1] == L'\n';
    return at + (pair ? 2 : 1);
}

/// Start of the line behind the one at `from`, the text's end when there is none.
std::size_t NextLine(std::wstring_view text, std::size_t from) {
    while (from < text.size() && text[from] != L'\r' && text[from] != L'\n') ++from;
    return from < text.size() ? BehindLineBreak(text, from) : from;
}

std::size_t CountLines(std::wstring_view text) {
    std::size_t lines = 1;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == L'\r' || text[at] == L'\n') {
            ++lines;
            at = BehindLineBreak(text, at);
        } else {
            ++at;
        }
    }
    return lines;
}

}  // namespace

CheckResult CheckText(std::wstring_view text, DictionaryStore& store, const SplitRules& rules,
                      Progress& progress) {
    bool& cancel = store.State().CancelFlag;
    cancel = false;
    const std::size_t line_count = text.empty() ? 0 : CountLines(text);
    progress.SetCaption(
        modLoadRes::LoadResText(store.State(), text_id::kSplittingWords, {}, L"..."));
    progress.SetRange(line_count);

    TextChecker checker(store, rules);
    std::size_t fed = 0;
    std::size_t line = 1;
    for (std::size_t at = 0; at < text.size(); at = NextLine(text, at), ++line) {
        const bool due = progress.IsDue();
        if (due || at - fed >= kMostGroupUnits) {
            checker.Feed(text.substr(fed, at - fed), [](const UnknownWord&) {});
            fed = at;
        }
        if (!due) continue;
        progress.SetCaption(L"Checking line (" + std::to_wstring(line) + L" of " +
                            std::to_wstring(line_count) + L")");
        progress.SetPosition(line);
        if (progress.YieldAndAskCancel()) cancel = true;
        if (cancel) return {checker.Words(), cancel};
    }
    checker.Feed(text.substr(fed), [](const UnknownWord&) {});
    return {checker.Words(), cancel};
}

}  // namespace wordhawk
