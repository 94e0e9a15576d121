#pragma once

#include "app/apostrophes.h"
#include "dict/dictionary_store.h"
#include "engine/suggest/suggestions.h"

#include <string>
#include <string_view>
#include <utility>

namespace wordhawk {

/// Suggestions for a word as a house style wants them: the preferred ones of a forbidden word come
/// first, the first of them as the best, and no forbidden word is suggested.
Suggestions WithHouseStyle(Suggestions found, std::wstring_view word,
                           const ForbiddenWords& forbidden);

/// What `search(word)` finds, by the house style of the store. With StraightApostrophe a word with
/// typographic apostrophes is searched as one with straight ones, and gets its own kind back.
template <class Search>
Suggestions AsInTheText(DictionaryStore& store, std::wstring_view word, Search&& search) {
    const bool typographic = store.CurrentSettings().StraightApostrophe != 0 &&
                             word.find(kTypographicApostrophe) != std::wstring_view::npos;
    if (!typographic) return WithHouseStyle(search(word), word, store.Forbidden());
    const std::wstring straight = WithStraightApostrophes(std::wstring(word));
    Suggestions found = WithHouseStyle(search(straight), straight, store.Forbidden());
    for (Suggestion& suggestion : found.list)
        suggestion.word = WithTypographicApostrophes(std::move(suggestion.word));
    return found;
}

}  // namespace wordhawk
