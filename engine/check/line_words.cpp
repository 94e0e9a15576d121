#include "engine/check/line_words.h"

#include "engine/check/modSubs.h"
#include "engine/check/web_addresses.h"
#include "platform/text.h"

#include <algorithm>

namespace wordhawk {
namespace {

/// Calls `take` for each piece of `text` between separators, the empty ones included.
template <class Take>
void Split(std::wstring_view text, std::wstring_view separator, Take&& take) {
    for (std::size_t from = 0;;) {
        const std::size_t at = text.find(separator, from);
        take(text.substr(from, at - from));
        if (at == std::wstring_view::npos) return;
        from = at + separator.size();
    }
}

}  // namespace

std::wstring ReplaceDelimiters(std::wstring_view text, const SplitRules& rules,
                               std::wstring_view replacement, Progress& progress) {
    std::wstring result = rules.ignore_webs ? RemoveWebAddresses(text) : std::wstring(text);
    if (rules.straight_apostrophe) result = WithStraightApostrophes(std::move(result));
    for (std::size_t i = 0; i < rules.delimiters.size(); ++i) {
        const wchar_t delimiter = rules.delimiters[i];
        if (result.find(delimiter) != std::wstring::npos) {
            std::wstring replaced;
            replaced.reserve(result.size());
            Split(result, std::wstring_view(&delimiter, 1), [&](std::wstring_view piece) {
                if (piece.data() != result.data()) replaced += replacement;
                replaced += piece;
            });
            result.swap(replaced);
        }
        progress.SetPosition(i + 1);
        if (progress.YieldAndAskCancel()) break;
    }
    return result;
}

std::vector<std::wstring> ExtractLineWords(std::wstring_view text, const SplitRules& rules) {
    const std::wstring lower = Lower(text);
    std::vector<std::wstring> words;
    Split(lower, L"\r\n", [&](std::wstring_view line) {
        Split(Trim(line), L" ", [&](std::wstring_view word) {
            if (modSubs::CleanWord(word, rules) < 0) return;
            Split(word, L",", [&](std::wstring_view piece) {
                piece = Trim(piece);
                if (!piece.empty() && std::find(words.begin(), words.end(), piece) == words.end()) {
                    words.emplace_back(piece);
                }
            });
        });
    });
    return words;
}

}  // namespace wordhawk
