#include "cli/commands.h"
#include "cli/json.h"
#include "cli/output.h"
#include "cli/session.h"
#include "dict/phonetic_key.h"
#include "engine/suggest/cLS.h"
#include "engine/suggest/modSimPercent.h"
#include "engine/suggest/suggestions.h"
#include "engine/suggest/wide_search.h"

#include <utility>
#include <vector>

namespace wordhawk {
namespace {

struct Explanation {
    std::int32_t word_key;
    std::int32_t candidate_key;
    std::wstring dictionary_file;
    std::wstring candidate_file;
    std::int32_t distance;
    std::int32_t distance_with_swaps;
    std::int32_t score;
};

Explanation Measure(std::wstring_view word, std::wstring_view candidate,
                    const SuggestionRules& rules, const AnsiCodePage& page) {
    const std::wstring lower = Lower(word);
    cLS distance;
    Explanation result;
    result.word_key = GetPhoneticKey(lower, page);
    result.candidate_key = GetPhoneticKey(candidate, page);
    result.dictionary_file = GetDictionaryFileName(lower, page);
    result.candidate_file = GetDictionaryFileName(Lower(candidate), page);
    result.distance = distance.LevenshteinDistance(word, candidate, Transposition::NotCounted);
    result.distance_with_swaps =
        distance.LevenshteinDistance(word, candidate, Transposition::OneEdit);
    result.score = modSimPercent::SimilarityPercent(lower, candidate, result.candidate_key,
                                                    result.word_key, rules.search_mode, page);
    return result;
}

/// The pattern that a candidate's key must match before it is scored; none in search mode 1.
std::wstring KeyPattern(std::int32_t word_key, std::uint8_t search_mode) {
    const std::string digits = std::to_string(word_key);
    std::wstring key(digits.begin(), digits.end());
    if (search_mode == 0) return key.substr(0, 2) + L"##" + key.substr(key.size() - 1);
    if (search_mode == 2) return key.substr(0, 4) + L"#";
    return {};
}

/// The first step of a search that leaves the candidate out, in words; empty when it is suggested.
std::string DroppedBy(std::wstring_view word, const Explanation& is, const SuggestionRules& rules) {
    if (word.size() < 2) return "length: a word of one character has no suggestions";
    const std::int32_t distance = rules.count_swaps ? is.distance_with_swaps : is.distance;
    if (distance > rules.diversity) {
        return "distance: " + std::to_string(distance) + " is above Diversity " +
               std::to_string(rules.diversity);
    }
    const std::wstring pattern = KeyPattern(is.word_key, rules.search_mode);
    const std::string digits = std::to_string(is.candidate_key);
    if (rules.search_mode > 2)
        return "key: there is no search mode " + std::to_string(rules.search_mode);
    if (!pattern.empty() &&
        !modSimPercent::LikePattern(std::wstring(digits.begin(), digits.end()), pattern)) {
        return "key: " + digits + " does not match " + ToUtf8(pattern);
    }
    if (rules.search_mode == 1 && digits.substr(0, 3) != std::to_string(is.word_key).substr(0, 3)) {
        return "key: the first three digits of " + digits + " and " + std::to_string(is.word_key) +
               " differ";
    }
    if (is.score < rules.score_threshold) {
        return "score: " + std::to_string(is.score) + " is below ScoreValue " +
               std::to_string(rules.score_threshold);
    }
    if (is.candidate_file != is.dictionary_file) {
        return "file: main dictionary words are taken from " + ToUtf8(is.dictionary_file) +
               " only, this one is in " + ToUtf8(is.candidate_file);
    }
    return {};
}

/// The same for the search through the whole dictionary.
std::string DroppedBy(std::wstring_view word, const WideSearch::Account& account) {
    if (word.size() < 2) return "length: a word of one character has no suggestions";
    if (!account.known) return "dictionaries: none of them holds the candidate";
    const int most = WideSearch::MostEdits(word.size());
    if (account.distance > most && !account.sounds_alike) {
        return "distance: " + std::to_string(account.distance) + " edits are more than " +
               std::to_string(most);
    }
    return {};
}

/// With two places behind the point.
std::string Decimal(float number) {
    std::string text = std::to_string(number);
    return text.substr(0, text.find('.') + 3);
}

}  // namespace

int RunExplain(const GlobalOptions& global, const ExplainOptions& options) {
    Session session(global);
    const SuggestionRules rules = SuggestionRules::From(session.program.settings);
    const std::wstring word = FromUtf8(options.word);
    const std::wstring candidate = FromUtf8(options.candidate);
    const Explanation is = Measure(word, candidate, rules, session.program.dictionaries.Page());
    const bool wide = session.program.settings.WideSearch != 0;
    WideSearch::Account account;
    if (wide) account = WideSearch(session.program.dictionaries).Explain(word, candidate);
    const std::string dropped_by = wide ? DroppedBy(word, account) : DroppedBy(word, is, rules);

    std::vector<std::pair<std::string_view, std::string>> rows = {
        {"word", JsonString(word)},
        {"candidate", JsonString(candidate)},
        {"word_key", std::to_string(is.word_key)},
        {"candidate_key", std::to_string(is.candidate_key)},
        {"dictionary_file", JsonString(is.dictionary_file)},
        {"distance", std::to_string(is.distance)},
        {"distance_with_swaps", std::to_string(is.distance_with_swaps)},
        {"score", std::to_string(wide ? account.score : is.score)},
    };
    if (wide) {
        rows.insert(rows.end(), {{"edit_cost", Decimal(account.edits)},
                                 {"rarity_cost", Decimal(account.rarity)},
                                 {"trait_cost", Decimal(account.traits)}});
    }
    rows.emplace_back("dropped_by",
                      dropped_by.empty() ? "null" : JsonString(std::string_view(dropped_by)));
    Output out(stdout);
    if (options.json) {
        for (const auto& [name, value] : rows) {
            out << (name == "word" ? "{" : ", ") << JsonString(name) << ": " << value;
        }
        out << "}\n";
    } else {
        const auto line = [&out](std::string_view name, const auto& value) {
            constexpr std::size_t kColumn = 21;
            out << name
                << std::string_view("                     ").substr(0, kColumn - name.size())
                << value << '\n';
        };
        line("word", word);
        line("candidate", candidate);
        line("word_key", is.word_key);
        line("candidate_key", is.candidate_key);
        line("dictionary_file", is.dictionary_file);
        line("distance", is.distance);
        line("distance_with_swaps", is.distance_with_swaps);
        line("score", wide ? account.score : is.score);
        if (wide) {
            line("edit_cost", Decimal(account.edits));
            line("rarity_cost", Decimal(account.rarity));
            line("trait_cost", Decimal(account.traits));
        }
        line("dropped_by", dropped_by.empty() ? std::string("nothing") : dropped_by);
    }
    out.Flush();
    return out.Failed() ? kExitFailed : kExitFine;
}

}  // namespace wordhawk
