#include "engine/suggest/house_style.h"

#include <algorithm>
#include <vector>

namespace wordhawk {

Suggestions WithHouseStyle(Suggestions found, std::wstring_view word,
                           const ForbiddenWords& forbidden) {
    if (forbidden.Empty()) return found;
    const std::wstring best =
        found.best < 0 ? std::wstring() : found.list[static_cast<std::size_t>(found.best)].word;
    std::vector<Suggestion> list;
    if (const ForbiddenWords::Entry* const entry = forbidden.Find(word)) {
        for (const std::wstring& preferred : entry->preferred) list.push_back({preferred, 0, 100});
    }
    const std::size_t preferred_count = list.size();
    for (Suggestion& suggestion : found.list) {
        const auto is_same = [&](const Suggestion& one) { return one.word == suggestion.word; };
        const auto preferred_end = list.begin() + static_cast<std::ptrdiff_t>(preferred_count);
        if (forbidden.Find(suggestion.word) == nullptr &&
            std::none_of(list.begin(), preferred_end, is_same)) {
            list.push_back(std::move(suggestion));
        }
    }
    const auto place = std::find_if(list.begin(), list.end(),
                                    [&](const Suggestion& one) { return one.word == best; });
    const bool stays = preferred_count == 0 && place != list.end();
    found.best = list.empty() ? -1 : stays ? static_cast<int>(place - list.begin()) : 0;
    found.list = std::move(list);
    return found;
}

}  // namespace wordhawk
