#include "engine/suggest/suggestions.h"

#include "engine/suggest/word_matcher.h"

#include <algorithm>

namespace wordhawk {
namespace {

/// One search: what the dictionaries visited so far have given.
class Search {
  public:
    Search(DictionaryStore& store, std::wstring_view word, const SuggestionRules& rules)
        : page_(store.Page()), matcher_(word, rules, page_) {}

    void Visit(const DictionaryFile& file) {
        const CandidateList& candidates = file.Candidates(page_);
        const char* const bytes = file.Bytes().data();
        const std::size_t leading = candidates.leading_inherits;
        const std::int32_t leading_key = carried_key_ != 0 ? carried_key_ : candidates.leading_key;
        for (std::size_t i = 0; i < candidates.size(); ++i) {
            if (!matcher_.LettersMayPass(candidates.lengths[i], candidates.masks[i])) continue;
            const std::int32_t key = i < leading ? leading_key : candidates.keys[i];
            const std::string_view word(bytes + candidates.offsets[i], candidates.lengths[i]);
            const auto score = matcher_.Score(word, candidates.masks[i], key);
            if (score) Take(page_.Decode(word), key, *score);
        }
        if (candidates.size() > leading) {
            carried_key_ = candidates.last_key;
        } else if (leading > 0) {
            carried_key_ = leading_key;
        }
    }

    bool FoundBest() const { return !best_.empty(); }
    const std::wstring& LowerWord() const { return matcher_.LowerWord(); }

    Suggestions Finish(std::uint8_t search_mode) {
        if (search_mode != 1) {
            std::stable_sort(
                found_.list.begin(), found_.list.end(),
                [](const Suggestion& a, const Suggestion& b) { return a.score > b.score; });
        }
        if (FoundBest()) {
            const auto at =
                std::find_if(found_.list.begin(), found_.list.end(),
                             [&](const Suggestion& s) { return EqualIgnoringCase(s.word, best_); });
            found_.best = static_cast<int>(at - found_.list.begin());
        }
        found_.work = matcher_.Work();
        return std::move(found_);
    }

  private:
    void Take(std::wstring candidate, std::int32_t key, std::int32_t score) {
        const bool is_word_itself = candidate == matcher_.LowerWord();
        if (is_word_itself || score > best_score_) {
            best_score_ = score;
            if (!best_is_fixed_) {
                best_ = candidate;
                best_is_fixed_ = is_word_itself;
            }
        }
        found_.list.push_back({std::move(candidate), key, score});
    }

    const AnsiCodePage& page_;
    WordMatcher matcher_;
    Suggestions found_;
    std::wstring best_;
    std::int32_t best_score_ = 0;
    bool best_is_fixed_ = false;
    /// Key of the last line visited: a line with three fields or more takes it over.
    std::int32_t carried_key_ = 0;
};

}  // namespace

Suggestions FindSuggestions(DictionaryStore& store, std::wstring_view word,
                            const SuggestionRules& rules) {
    if (word.size() < 2) return {};
    Search search(store, word, rules);
    const DictionaryFile* const main = store.MainFileFor(search.LowerWord());
    if (main != nullptr) search.Visit(*main);
    if (!rules.main_only) {
        for (std::size_t i = 0; i < store.CustomCount() && !search.FoundBest(); ++i) {
            const DictionaryFile* const custom = store.CustomFile(i);
            if (custom != nullptr) search.Visit(*custom);
        }
    }
    return search.Finish(rules.search_mode);
}

}  // namespace wordhawk
