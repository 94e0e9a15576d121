#include "engine/suggest/wide_search.h"

#include "engine/suggest/edit_costs.h"
#include "engine/suggest/edit_path.h"
#include "engine/suggest/logarithm.h"
#include "engine/suggest/near_distance.h"
#include "engine/suggest/suggester.h"
#include "engine/suggest/word_skeletons.h"
#include "tests/support/dictionaries.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace wordhawk {
namespace {

using test::Dictionaries;
using test::Random;

std::vector<std::wstring> WordsOf(const Suggestions& found) {
    std::vector<std::wstring> words;
    for (const Suggestion& suggestion : found.list) words.push_back(suggestion.word);
    return words;
}

TEST(Logarithm, IsTheLibrarysToFourteenDigits) {
    for (double x = 1; x < 1e18; x *= 1.000731) {
        ASSERT_NEAR(NaturalLog(x), std::log(x), 1e-14 * (1 + std::log(x))) << x;
    }
    EXPECT_EQ(NaturalLog(1), 0);
    for (double x = 0; x < 700; x += 0.01037) {
        ASSERT_NEAR(PowerOfMinus(x), std::exp(-x), 1e-13 * std::exp(-x)) << x;
    }
    EXPECT_EQ(PowerOfMinus(0), 1);
    EXPECT_EQ(PowerOfMinus(1e30), 0);
}

/// The distance by its whole matrix.
int PlainDistance(std::string_view a, std::string_view b) {
    std::vector<std::vector<int>> d(a.size() + 1, std::vector<int>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                d[i][j] = static_cast<int>(i + j);
                continue;
            }
            d[i][j] = std::min(
                {d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + (a[i - 1] != b[j - 1])});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
        }
    }
    return d[a.size()][b.size()];
}

std::string Narrow(const std::wstring& text) { return ToUtf8(text); }

TEST(NearDistance, EqualsTheWholeMatrix) {
    Random random(11);
    for (int round = 0; round < 4000; ++round) {
        const std::string a = Narrow(random.Word(L"abc", 0, round % 50 == 0 ? 64 : 8));
        const std::string b = Narrow(random.Word(L"abc", 0, 9));
        const int distance = PlainDistance(a, b);
        EXPECT_EQ(NearDistance(a).To(b), distance) << a << ' ' << b;
        for (int most = 0; most < 9; ++most)
            EXPECT_EQ(std::min(NearDistance(a).To(b, most), most + 1),
                      std::min(distance, most + 1));
    }
}

TEST(Skeletons, WordsTwoEditsApartShareOne) {
    Random random(12);
    std::array<std::uint32_t, skeletons::kMost> first;
    std::array<std::uint32_t, skeletons::kMost> second;
    for (int round = 0; round < 4000; ++round) {
        const std::string a = Narrow(random.Word(L"abcd", 1, 10));
        const std::string b = Narrow(random.Word(L"abcd", 1, 10));
        if (PlainDistance(a, b) > 2) continue;
        const std::size_t n = skeletons::BucketsOf(skeletons::PrefixOf(a), 20, first);
        const std::size_t m = skeletons::BucketsOf(skeletons::PrefixOf(b), 20, second);
        EXPECT_NE(
            std::find_first_of(first.begin(), first.begin() + static_cast<std::ptrdiff_t>(n),
                               second.begin(), second.begin() + static_cast<std::ptrdiff_t>(m)),
            first.begin() + static_cast<std::ptrdiff_t>(n))
            << a << ' ' << b;
    }
}

/// A cost for every edit, from its number.
struct OddCosts {
    float Of(const Edit& edit) const {
        return static_cast<float>(1 + edit.Number() * 2654435761U % 97) / 10;
    }
};

/// The cheapest way by trying every one, from meant[i] and written[j] on.
float CheapestWay(const Spelling& meant, const Spelling& written, int i, int j) {
    if (i == meant.size && j == written.size) return 0;
    // No step leads on from too far off the diagonal.
    constexpr int kBand = EditPath<OddCosts>::kBand;
    const int longer = meant.size - written.size;
    if (i - j > std::max(0, longer) + kBand || i - j < std::min(0, longer) - kBand) return 1e6F;
    float best = 1e6F;
    const auto go = [&](EditKind kind, int rows, int columns) {
        Edit edit;
        edit.kind = kind;
        edit.before = meant.At(i - 1);
        edit.behind = meant.At(i + rows);
        for (int k = 0; k < rows; ++k) edit.meant[static_cast<std::size_t>(k)] = meant.At(i + k);
        if (kind != EditKind::Swap) {
            for (int k = 0; k < columns; ++k)
                edit.written[static_cast<std::size_t>(k)] = written.At(j + k);
        }
        best = std::min(best,
                        OddCosts().Of(edit) + CheapestWay(meant, written, i + rows, j + columns));
    };
    const bool m1 = i < meant.size;
    const bool w1 = j < written.size;
    const bool m2 = i + 1 < meant.size;
    const bool w2 = j + 1 < written.size;
    const auto same = [&](int m, int w) { return meant.ByteAt(i + m) == written.ByteAt(j + w); };
    if (m1 && w1 && same(0, 0)) best = CheapestWay(meant, written, i + 1, j + 1);
    if (m1) go(EditKind::Drop, 1, 0);
    if (w1) go(EditKind::Insert, 0, 1);
    if (m1 && w1 && !same(0, 0)) go(EditKind::Mistake, 1, 1);
    if (m2 && w2 && same(0, 1) && same(1, 0) && !same(0, 0)) go(EditKind::Swap, 2, 2);
    if (m2 && w1 && !same(0, 0) && !same(1, 0)) go(EditKind::TwoForOne, 2, 1);
    if (m1 && w2 && !same(0, 0) && !same(0, 1)) go(EditKind::OneForTwo, 1, 2);
    return best;
}

TEST(EditPath, FindsTheCheapestWay) {
    const std::array<Letter, 256> letters = letters::OfPage(AnsiCodePage::Get(1252));
    Random random(13);
    OddCosts costs;
    EditPath<OddCosts> path(costs);
    for (int round = 0; round < 300; ++round) {
        // Another beginning and end, so that nothing is passed over as equal.
        const std::string a = Narrow(L'a' + random.Word(L"abc'", 1, 3) + L'a');
        const std::string b = Narrow(L'b' + random.Word(L"abc'", 1, 3) + L'c');
        const Spelling meant = SpellingOf(a, letters);
        const Spelling written = SpellingOf(b, letters);
        const float cost = path.Cost(meant, written);
        EXPECT_NEAR(cost, CheapestWay(meant, written, 0, 0), 1e-3) << a << ' ' << b;
        float sum = 0;
        path.ForEachEdit([&](const Edit& edit) { sum += costs.Of(edit); });
        EXPECT_NEAR(sum, cost, 1e-3) << a << ' ' << b;
        for (const float most : {0.5F * cost, cost, 1.2F * cost}) {
            const float within = path.Cost(meant, written, most);
            if (most >= cost)
                EXPECT_EQ(within, cost);
            else
                EXPECT_GT(within, most);
        }
    }
}

TEST(LearnedCosts, TellSlipsFromOtherWords) {
    for (const int locale : {1033, 1031}) {
        const LearnedTable& table = LearnedTableFor(locale);
        EXPECT_TRUE(std::is_sorted(
            table.edits.begin(), table.edits.end(),
            [](const LearnedCost& a, const LearnedCost& b) { return a.feature < b.feature; }));
        EditCosts costs(table);
        Edit doubled{EditKind::Drop, {letters::Of('c')}, {}, letters::Of('c'), letters::Of('o')};
        Edit lost{EditKind::Drop, {letters::Of('c')}, {}, letters::Of('a'), letters::Of('o')};
        // Only the second one changes what consonants the word has.
        const float consonants = table.traits[static_cast<std::size_t>(Trait::Consonants)];
        EXPECT_LT(costs.Of(doubled), costs.Of(lost) + consonants) << locale;
        for (const float weight : table.traits) EXPECT_GE(weight, 0) << locale;
    }
}

class WideSearchTest : public ::testing::Test {
  protected:
    Dictionaries data_;
};

TEST_F(WideSearchTest, FindsWordsOfOtherBeginnings) {
    data_.WriteMain({L"receive", L"relieve", L"the", L"test", L"set", L"system", L"stem", L"phone",
                     L"don't", L"dont"});
    WideSearch search(data_.store);
    struct Case {
        std::wstring word, first;
    };
    for (const Case& c : std::vector<Case>{{L"recieve", L"receive"},
                                           {L"Recieve", L"receive"},
                                           {L"sytem", L"system"},
                                           {L"tset", L"test"},
                                           {L"hte", L"the"},
                                           {L"fone", L"phone"},
                                           {L"don\u2019tt", L"don't"}}) {
        const Suggestions found = search.Find(c.word);
        ASSERT_FALSE(found.list.empty()) << ToUtf8(c.word);
        EXPECT_EQ(found.best, 0);
        EXPECT_EQ(found.list[0].word, c.first) << ToUtf8(c.word);
        EXPECT_TRUE(std::is_sorted(
            found.list.begin(), found.list.end(),
            [](const Suggestion& a, const Suggestion& b) { return a.score > b.score; }));
    }
    EXPECT_TRUE(search.Find(L"t").list.empty());
    EXPECT_TRUE(search.Find(std::wstring(65, L'a')).list.empty());
    EXPECT_TRUE(search.Find(L"xqzzvw").list.empty());
    const Suggestions itself = search.Find(L"stem");
    ASSERT_GE(itself.list.size(), 1U);
    EXPECT_EQ(itself.list[0].word, L"stem");
    EXPECT_EQ(itself.list[0].score, 100);
}

TEST_F(WideSearchTest, CommonerWordsComeFirstAndPairsAreFound) {
    data_.WriteMain({L"cat", L"car", L"cap", L"no", L"one", L"nore", L"in", L"of"});
    test::WriteBytes(data_.state.LanguageDictFolder / "frequencies.txt",
                     "cat 10\ncar 5000000\ncap 900\nno 90000000\none 90000000\nin 90000000\n");
    WideSearch search(data_.store);
    const std::vector<std::wstring> caz = WordsOf(search.Find(L"cax"));
    EXPECT_EQ(caz, (std::vector<std::wstring>{L"car", L"cap", L"cat"}));
    const std::vector<std::wstring> pair = WordsOf(search.Find(L"noone"));
    EXPECT_NE(std::find(pair.begin(), pair.end(), L"no one"), pair.end());
    const std::vector<std::wstring> rare = WordsOf(search.Find(L"ofin"));
    EXPECT_EQ(std::find(rare.begin(), rare.end(), L"of in"), rare.end());
}

TEST_F(WideSearchTest, PairsOftenWrittenAsOneCompeteWithWords) {
    data_.WriteMain({L"a", L"lot", L"allot", L"case", L"incise", L"viable", L"available"});
    test::WriteBytes(data_.state.LanguageDictFolder / "frequencies.txt",
                     "a 90000000\na lot 70000\nallot 50\navailable 300000\nin case 200000\n"
                     "incise 10\nlot 70000\nviable 3000\n");
    WideSearch search(data_.store);
    EXPECT_EQ(WordsOf(search.Find(L"alot")).at(0), L"a lot");
    EXPECT_EQ(WordsOf(search.Find(L"aloot")).at(0), L"a lot");
    EXPECT_EQ(WordsOf(search.Find(L"aviable")).at(0), L"available");
    EXPECT_TRUE(search.Explain(L"alot", L"a lot").known);
    // "in" is in no dictionary yet.
    EXPECT_EQ(WordsOf(search.Find(L"incase")).at(0), L"incise");
    EXPECT_FALSE(search.Explain(L"incase", L"in case").known);
    data_.WriteCustom(L"CUSTOM.DIC", "in,1\r\n");
    EXPECT_EQ(WordsOf(search.Find(L"incase")).at(0), L"in case");
}

TEST_F(WideSearchTest, EqualsTryingEveryWord) {
    Random random(14);
    std::set<std::wstring> words;
    while (words.size() < 800) words.insert(random.Word(L"abcdeit'", 1, 11));
    data_.WriteMain({words.begin(), words.end()});
    data_.WriteCustom(L"CUSTOM.DIC", "aaccbb,1\r\nbacbac\r\n");
    words.insert({L"aaccbb", L"bacbac"});
    WideSearch search(data_.store);
    std::size_t suggested = 0;
    std::size_t far_searches = 0;
    for (int round = 0; round < 30; ++round) {
        const std::wstring word = random.Word(L"abcdeit'", round < 20 ? 2 : 10, 12);
        // By rank: no word two edits away or less that is not listed may cost less than a listed
        // one; where all words are hopeless, no word as far away as any is suggested from.
        const Suggestions found = search.Find(word);
        suggested += found.list.size();
        std::map<std::wstring, float> costs;
        std::vector<float> near_costs;
        std::vector<float> far_costs;
        float cheapest_edits = WideSearch::kHopeless;
        const int most_edits = WideSearch::MostEdits(word.size());
        for (const std::wstring& candidate : words) {
            const WideSearch::Account account = search.Explain(word, candidate);
            ASSERT_TRUE(account.known);
            ASSERT_EQ(account.distance, PlainDistance(Narrow(word), Narrow(candidate)));
            if (account.distance > most_edits && !account.sounds_alike) continue;
            const float cost =
                candidate == word ? -1 : account.edits + account.rarity + account.traits;
            costs[candidate] = cost;
            if (account.distance > most_edits) continue;
            far_costs.push_back(cost);
            cheapest_edits = std::min(cheapest_edits, account.edits);
            if (account.distance <= 2) near_costs.push_back(cost);
        }
        const bool far = cheapest_edits == WideSearch::kHopeless && most_edits > 2;
        far_searches += far && !far_costs.empty();
        const int reach = far ? most_edits : 2;
        std::vector<float>& all = far ? far_costs : near_costs;
        std::sort(all.begin(), all.end());
        std::size_t better = 0;
        float last = -2;
        for (const Suggestion& suggestion : found.list) {
            ASSERT_TRUE(costs.contains(suggestion.word))
                << ToUtf8(word) << ' ' << ToUtf8(suggestion.word);
            EXPECT_LE(last, costs[suggestion.word] + 1e-3F);
            last = costs[suggestion.word];
            // Words within reach fill their places in order.
            while (better < all.size() && all[better] < last - 1e-3F) ++better;
        }
        std::size_t listed_near = 0;
        for (const Suggestion& s : found.list)
            listed_near += PlainDistance(Narrow(word), Narrow(s.word)) <= reach &&
                           costs[s.word] < last - 1e-3F;
        EXPECT_EQ(listed_near, better) << ToUtf8(word);
    }
    EXPECT_GT(suggested, 100U);
    EXPECT_GT(far_searches, 2U);
}

TEST_F(WideSearchTest, FarWordsAreFoundByTheirLettersOrTheirSound) {
    const std::vector<std::wstring> words = {L"pheasant", L"bureaucracy", L"descendant",
                                             L"resent",   L"boutique",    L"macaque"};
    data_.WriteMain(words);
    WideSearch search(data_.store);
    const auto suggests = [&](const std::wstring& word, const std::wstring& suggestion) {
        const std::vector<std::wstring> found = WordsOf(search.Find(word));
        return std::find(found.begin(), found.end(), suggestion) != found.end();
    };
    EXPECT_TRUE(suggests(L"fezent", L"pheasant"));
    EXPECT_EQ(WordsOf(search.Find(L"beaurocracy")).at(0), L"bureaucracy");
    EXPECT_EQ(WordsOf(search.Find(L"decendentant")).at(0), L"descendant");
    EXPECT_TRUE(search.Explain(L"fezent", L"pheasant").sounds_alike);
    EXPECT_GT(search.Explain(L"fezent", L"pheasant").distance, WideSearch::MostEdits(6));
    // Where no image lists it by its sound.
    data_.WriteCustom(L"CUSTOM.DIC", "wallaby,1\r\nkartoosh\r\n");
    EXPECT_TRUE(suggests(L"curtewche", L"kartoosh"));
    // The sounds are those of English.
    data_.state.LanguageId = L"1030";
    data_.state.LanguageDictFolder = data_.state.DataFolder / "Dictionarys" / "1030" / "";
    data_.WriteMain(words);
    EXPECT_FALSE(suggests(L"fezent", L"pheasant"));
}

TEST_F(WideSearchTest, SettingChoosesTheSearch) {
    data_.WriteMain({L"test", L"the"});
    EXPECT_TRUE(Suggester(data_.store, data_.settings).Find(L"tset").list.empty());
    data_.settings.WideSearch = 1;
    EXPECT_EQ(WordsOf(Suggester(data_.store, data_.settings).Find(L"tset")).at(0), L"test");
}

}  // namespace
}  // namespace wordhawk
