#include "engine/suggest/suggestions.h"

#include "dict/phonetic_key.h"
#include "engine/suggest/cLS.h"
#include "engine/suggest/modSimPercent.h"
#include "tests/support/dictionaries.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace wordhawk {
namespace {

using test::Dictionaries;
using test::Random;

std::vector<std::wstring> Lines(const std::wstring& text) {
    std::vector<std::wstring> lines;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t end = std::min(text.find(L'\n', from), text.size());
        std::size_t length = end - from;
        if (length > 0 && end < text.size() && text[end - 1] == L'\r') --length;
        lines.push_back(text.substr(from, length));
        from = end + 1;
    }
    return lines;
}

/// The search line by line, test by test, in the order of its definition.
Suggestions SearchLineByLine(Dictionaries& data, const std::wstring& word,
                             const SuggestionRules& rules) {
    Suggestions result;
    if (word.size() < 2) return result;
    const AnsiCodePage& page = *data.state.CodePage;
    const std::wstring w = Lower(word);
    const std::int32_t word_key = GetPhoneticKey(w, page);
    const std::wstring key_text = std::to_wstring(word_key);
    std::wstring pattern;
    if (rules.search_mode <= 1) pattern = key_text.substr(0, 2) + L"##" + key_text.back();
    if (rules.search_mode == 2) pattern = key_text.substr(0, 4) + L"#";
    std::vector<Path> files = {data.store.MainPathFor(w)};
    for (const std::wstring& name : data.settings.CustomDictionaries)
        files.push_back(data.store.CustomPath(name));
    std::wstring best;
    int best_score = 0;
    bool fixed = false;
    std::int32_t key = 0;
    cLS measure;
    for (std::size_t d = 0; d < files.size(); ++d) {
        if (!std::filesystem::exists(files[d])) {
            if (rules.main_only) break;
            continue;
        }
        for (const std::wstring& line : Lines(page.Decode(test::ReadBytes(files[d])))) {
            const std::wstring c = line.substr(0, line.find(L','));
            if (c.empty()) continue;
            const auto fields = 1 + std::count(line.begin(), line.end(), L',');
            if (fields == 1) key = GetPhoneticKey(c, page);
            if (fields == 2) key = NumberOrZero(line.substr(line.find(L',') + 1));
            if (key == 0) key = GetPhoneticKey(c, page);
            const auto swaps =
                rules.count_swaps ? Transposition::OneEdit : Transposition::NotCounted;
            if (measure.LevenshteinDistance(word, c, swaps) > rules.diversity) continue;
            if (rules.search_mode > 2) continue;
            if (rules.search_mode != 1 &&
                !modSimPercent::LikePattern(std::to_wstring(key), pattern))
                continue;
            const std::int32_t s =
                modSimPercent::SimilarityPercent(w, c, key, word_key, rules.search_mode, page);
            if (s < rules.score_threshold) continue;
            result.list.push_back({c, key, s});
            if (c == w || s > best_score) {
                best_score = s;
                if (!fixed) {
                    best = c;
                    fixed = c == w;
                }
            }
        }
        if (rules.main_only || !best.empty()) break;
    }
    if (rules.search_mode != 1) {
        std::stable_sort(result.list.begin(), result.list.end(),
                         [](const auto& a, const auto& b) { return a.score > b.score; });
    }
    for (std::size_t i = 0; i < result.list.size() && result.best < 0 && !best.empty(); ++i) {
        if (EqualIgnoringCase(result.list[i].word, best)) result.best = static_cast<int>(i);
    }
    return result;
}

std::string Show(const Suggestions& suggestions) {
    std::string text = "best " + std::to_string(suggestions.best);
    for (const Suggestion& s : suggestions.list) {
        text += "; " + ToUtf8(s.word) + " " + std::to_string(s.key) + " " + std::to_string(s.score);
    }
    return text;
}

TEST(FindSuggestions, EqualsTheLineByLineSearchInAllModes) {
    Random random(21);
    for (int round = 0; round < 60; ++round) {
        Dictionaries data;
        const std::wstring letters = round % 2 == 0 ? L"aabct" : L"abt'\xE9";
        std::vector<std::wstring> words;
        for (int i = 0; i < 300; ++i)
            words.push_back((random.OneIn(2) ? L"ab" : L"at") + random.Word(letters, 0, 8));
        data.WriteMain(words);
        std::string custom;
        const std::vector<std::string> odd_tails = {
            "\r\n", ",65123\r\n", ",0\r\n", ",x\r\n", ",1,2\r\n", ",,\n", "\n", ",99999999999\r\n"};
        for (int i = 0; i < 100; ++i) {
            std::wstring word = L"a" + random.Word(L"abtC\xC9*", 0, 7);
            if (random.OneIn(9)) word.clear();
            custom += data.state.CodePage->Encode(word) + random.Pick(odd_tails);
        }
        data.WriteCustom(L"CUSTOM.DIC", custom);
        data.WriteCustom(L"two.dic", "abc,1,2\r\nabcd\r\nab,65200");
        data.settings.CustomDictionaries = {L"CUSTOM.DIC", L"missing.dic", L"two.dic"};
        for (int search = 0; search < 60; ++search) {
            SuggestionRules rules;
            rules.search_mode = static_cast<std::uint8_t>(random.Below(4));
            rules.count_swaps = random.OneIn(2);
            rules.diversity = static_cast<int>(random.Below(6)) - (random.OneIn(20) ? 3 : 0);
            rules.score_threshold = random.OneIn(3) ? static_cast<int>(random.Below(102))
                                                    : 60 + static_cast<int>(random.Below(30));
            if (random.OneIn(6)) rules.score_threshold = -static_cast<int>(random.Below(2));
            rules.main_only = random.OneIn(5);
            std::wstring word = random.OneIn(2)
                                    ? random.Pick(words)
                                    : L"a" + random.Word(letters + L"AT\x410?#[*", 0, 9);
            if (random.OneIn(30)) word += random.Word(letters, 60, 70);
            ASSERT_EQ(Show(FindSuggestions(data.store, word, rules)),
                      Show(SearchLineByLine(data, word, rules)))
                << ToUtf8(word) << " mode " << int{rules.search_mode} << " swaps "
                << rules.count_swaps << " diversity " << rules.diversity << " threshold "
                << rules.score_threshold;
        }
    }
}

class SuggestionRulesTest : public testing::Test {
  protected:
    SuggestionRulesTest() {
        data_.WriteMain({L"the", L"then", L"they", L"thee", L"receive", L"recede", L"relieve"});
    }
    std::vector<std::wstring> Words(std::wstring_view word) {
        std::vector<std::wstring> words;
        for (const Suggestion& s : FindSuggestions(data_.store, word, rules_).list)
            words.push_back(s.word);
        return words;
    }
    Dictionaries data_;
    SuggestionRules rules_;
    using List = std::vector<std::wstring>;
};

TEST_F(SuggestionRulesTest, RankByScoreExceptInModeOne) {
    rules_.score_threshold = 70;
    EXPECT_EQ(Words(L"thex"), (List{L"thee", L"then", L"they", L"the"}));
    rules_.search_mode = 1;
    EXPECT_EQ(Words(L"thex"), (List{}));  // the word's third key digit is 2, theirs 0 or 5
    EXPECT_EQ(Words(L"thea"), (List{L"the", L"thee", L"they"}));
}

TEST_F(SuggestionRulesTest, OneLetterHasNone) { EXPECT_EQ(Words(L"t"), List{}); }

TEST_F(SuggestionRulesTest, FullThresholdLeavesOnlyTheWordItself) {
    rules_.score_threshold = 100;
    EXPECT_EQ(Words(L"The"), List{L"the"});
    EXPECT_EQ(Words(L"thw"), List{});
}

TEST_F(SuggestionRulesTest, ZeroDiversityWantsTheSameCase) {
    rules_.diversity = 0;
    EXPECT_EQ(Words(L"the"), List{L"the"});
    EXPECT_EQ(Words(L"The"), List{});
}

TEST_F(SuggestionRulesTest, CapitalCountsInTheDistanceOnly) {
    rules_.score_threshold = 60;
    data_.WriteMain({L"the"});
    data_.WriteCustom(L"CUSTOM.DIC", "the,84000\r\n");
    data_.settings.CustomDictionaries = {L"CUSTOM.DIC"};
    rules_.search_mode = 1;
    EXPECT_EQ(Words(L"teh"), List{L"the"});
    EXPECT_EQ(Words(L"Teh"), List{});
    rules_.count_swaps = true;
    EXPECT_EQ(Words(L"Teh"), List{L"the"});
}

TEST_F(SuggestionRulesTest, CustomDictionariesComeOneByOneWhileNothingIsFound) {
    data_.WriteCustom(L"one.dic", "zebra,90160\r\n");
    data_.WriteCustom(L"two.dic", "zebras,90162\r\nzebra,90160\r\n");
    data_.settings.CustomDictionaries = {L"missing.dic", L"one.dic", L"two.dic"};
    EXPECT_EQ(Words(L"zebrl"), List{});  // no key ends in its 4
    EXPECT_EQ(Words(L"zebre"), List{L"zebra"});
    data_.WriteMain({L"zebrb"});
    rules_.main_only = true;
    EXPECT_EQ(Words(L"zebre"), List{});
}

TEST_F(SuggestionRulesTest, WithoutAThresholdModeOneListsWhatScoresNothing) {
    data_.WriteCustom(L"CUSTOM.DIC", "zzz,90200\r\n");
    data_.settings.CustomDictionaries = {L"CUSTOM.DIC"};
    rules_ = {.score_threshold = 0, .diversity = 9, .search_mode = 1};
    const Suggestions found = FindSuggestions(data_.store, L"aei", rules_);
    EXPECT_EQ(Show(found), "best -1; zzz 90200 0");
}

TEST_F(SuggestionRulesTest, WorkGrowsNoFasterThanTheWord) {
    std::wstring near(300, L't');
    data_.WriteMain({L"the", L"then", L"tt", L"ttht", near});
    const std::wstring shapes[] = {L"t", L"th", L"[", L"t[h]", L"[t-h", L"*t", L"t?#", L"the\x416"};
    for (const std::wstring& shape : shapes) {
        for (const bool swaps : {false, true}) {
            for (const int threshold : {0, 80}) {
                rules_ = {.score_threshold = threshold, .count_swaps = swaps, .search_mode = 1};
                std::uint64_t work[2] = {};
                for (const std::size_t size : {1000u, 4000u}) {
                    std::wstring word = L"th";
                    while (word.size() < size) word += shape;
                    word.resize(size);
                    work[size == 4000] = FindSuggestions(data_.store, word, rules_).work;
                }
                EXPECT_LE(work[1], 5 * work[0]) << ToUtf8(shape) << swaps << threshold;
                // By default no candidate comes as far as a measure.
                if (threshold == 80 && !swaps) {
                    EXPECT_EQ(work[1], 0u) << ToUtf8(shape);
                }
            }
        }
    }
}

TEST_F(SuggestionRulesTest, FirstOfEqualScoresIsBest) {
    const Suggestions found = FindSuggestions(data_.store, L"thet", rules_);
    ASSERT_GE(found.list.size(), 2u);
    EXPECT_EQ(found.best, 0);
    EXPECT_EQ(found.list[0].word, L"thee");
}

}  // namespace
}  // namespace wordhawk
