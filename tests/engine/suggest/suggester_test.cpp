#include "engine/suggest/suggester.h"

#include "dict/pack_extras.h"
#include "tests/support/dictionaries.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

class SuggesterTest : public testing::Test {
  protected:
    SuggesterTest() {
        data_.settings.ScoreValue = 1;
        data_.WriteMain({L"the", L"then", L"thee", L"isn't", L"isnt"});
    }
    /// The words, the best one in brackets.
    std::wstring Find(std::wstring_view word) {
        const Suggestions found = Suggester(data_.store, data_.settings).Find(word);
        std::wstring shown;
        for (std::size_t i = 0; i < found.list.size(); ++i) {
            const bool best = static_cast<int>(i) == found.best;
            shown += (i == 0 ? L"" : L" ");
            shown += best ? L"[" + found.list[i].word + L"]" : found.list[i].word;
        }
        return shown;
    }
    test::Dictionaries data_;
};

TEST_F(SuggesterTest, PutsPreferredWordsFirstAndLeavesForbiddenOnesOut) {
    const std::wstring plain = Find(L"thew");
    EXPECT_NE(plain.find(L"thee"), plain.npos);
    const Path file = data_.store.ForbiddenPath();
    test::WriteBytes(file, "thew -> a lot, thee\r\nthen\r\n");
    data_.store.ReloadCustomDictionaries();
    EXPECT_EQ(Find(L"Thew"), L"[a lot] thee the");
    EXPECT_EQ(Find(L"thenn").find(L"then"), std::wstring::npos);
    test::WriteBytes(file, "the\r\nthen\r\nthee\r\nthew\r\n");
    data_.store.ReloadCustomDictionaries();
    EXPECT_EQ(Find(L"thew"), L"");
}

TEST_F(SuggesterTest, KeepsTheKindOfApostrophe) {
    data_.settings.StraightApostrophe = 1;
    EXPECT_EQ(Find(L"isnn\x2019t").substr(0, 7), L"[isn\x2019t]");
    EXPECT_EQ(Find(L"isnn't").substr(0, 7), L"[isn't]");
}

TEST_F(SuggesterTest, NeverOffersPiecesOfWords) {
    test::WriteBytes(data_.state.LanguageDictFolder / kPiecesFile, "isn,0\r\nisnx,0\r\nthxx,0\r\n");
    for (const std::uint8_t whole_dictionary : {0, 1}) {
        data_.settings.WideSearch = whole_dictionary;
        for (const wchar_t* word : {L"isn", L"issn", L"isnxx", L"thxxx"}) {
            for (const Suggestion& offered : Suggester(data_.store, data_.settings).Find(word).list)
                EXPECT_TRUE(offered.word != L"isn" && offered.word != L"isnx" &&
                            offered.word != L"thxx")
                    << word;
        }
    }
}

}  // namespace
}  // namespace wordhawk
