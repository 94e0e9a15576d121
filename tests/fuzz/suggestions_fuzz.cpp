// Suggestions from dictionaries that somebody prepared.

#include "engine/suggest/suggestions.h"
#include "tests/fuzz/rounds.h"
#include "tests/support/dictionaries.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace wordhawk {
namespace {

using test::Random;

std::string HostileDictionary(Random& random) {
    static const std::vector<std::string> kPieces = {"hello,72400\r\n",
                                                     "help,72410\r\n",
                                                     "he,72000\n",
                                                     "heap",
                                                     ",",
                                                     ",,",
                                                     "\r\n",
                                                     "\n",
                                                     "\r",
                                                     "-1",
                                                     "2147483648",
                                                     "99999999999999",
                                                     "held,x,y\r\n",
                                                     "\xE9",
                                                     "\xFF",
                                                     std::string(1, '\0'),
                                                     "helo,724001\r\n",
                                                     std::string(700, 'h') + ",72400\r\n",
                                                     "HELLO,72400\r\n"};
    std::string bytes;
    for (std::size_t count = random.Below(40); count > 0; --count) bytes += random.Pick(kPieces);
    return bytes;
}

TEST(SuggestionsFuzz, HostileDictionariesGiveSuggestionsInOrder) {
    test::Dictionaries data;
    const Path main = data.store.MainPathFor(L"hello");
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        Random random(test::Seed() + round);
        // A file serves several rounds: writing it takes longest.
        if (round % 16 == 0) {
            test::WriteBytes(main, HostileDictionary(random));
            data.WriteCustom(L"CUSTOM.DIC", HostileDictionary(random));
            data.store.ReloadFile(main);
            data.store.ReloadCustomDictionaries();
        }
        SuggestionRules rules;
        rules.score_threshold = static_cast<int>(random.Below(110)) - 5;
        rules.diversity = static_cast<int>(random.Below(12)) - 1;
        rules.count_swaps = random.OneIn(2);
        rules.search_mode = static_cast<std::uint8_t>(random.Below(5));
        const std::wstring word = L"he" + random.Word(L"lop\xE9-'", 0, random.OneIn(20) ? 300 : 8);
        const std::string typed = ToUtf8(word);
        const test::Input input(round, typed);
        const Suggestions found = FindSuggestions(data.store, word, rules);
        // A candidate that scores nothing may be listed; only the word itself is best all the same.
        const bool any_scores = std::any_of(found.list.begin(), found.list.end(),
                                            [](const auto& one) { return one.score > 0; });
        ASSERT_TRUE(found.best >= 0 || !any_scores);
        ASSERT_LT(found.best, static_cast<int>(found.list.size()));
        for (std::size_t i = 0; i < found.list.size(); ++i) {
            ASSERT_FALSE(found.list[i].word.empty());
            ASSERT_GE(found.list[i].score, 0);
            ASSERT_LE(found.list[i].score, 100);
            const bool sorted = rules.search_mode == 0 || rules.search_mode == 2;
            if (sorted && i > 0) {
                ASSERT_LE(found.list[i].score, found.list[i - 1].score);
            }
        }
    }
}

}  // namespace
}  // namespace wordhawk
