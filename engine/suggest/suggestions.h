#pragma once

#include "dict/dictionary_store.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

struct Suggestion {
    std::wstring word;
    std::int32_t key = 0;
    std::int32_t score = 0;  ///< percent, 0 to 100
};

struct Suggestions {
    /// Best score first and equal scores in file order when the mode is 0 or 2; file order in 1.
    std::vector<Suggestion> list;
    /// Index of the best suggestion in `list` (the first entry with its text), -1 when there is
    /// none.
    int best = -1;
    /// Pairs of letters that the measures looked at beyond their quick forms: how the cost of a
    /// search grows with its word, without a clock.
    std::uint64_t work = 0;
};

/// The parameters of a search.
struct SuggestionRules {
    int score_threshold = 80;
    int diversity = 2;
    bool count_swaps = false;
    bool main_only = false;
    std::uint8_t search_mode = 0;

    static SuggestionRules From(const Settings& settings) {
        return {settings.ScoreValue, settings.Diversity, settings.ExtraDiversity != 0,
                settings.SuggFromMain != 0, settings.SortBy};
    }
};

/// Finds the dictionary words close to `word` (its case counts in the distance, not in the score):
/// in the main file for its beginning, then in the custom dictionaries one by one while nothing was
/// found. A word of fewer than two units has none.
Suggestions FindSuggestions(DictionaryStore& store, std::wstring_view word,
                            const SuggestionRules& rules);

}  // namespace wordhawk
