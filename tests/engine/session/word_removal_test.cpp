#include "engine/session/word_removal.h"

#include "dict/dictionary_file.h"
#include "tests/engine/session/session_fixture.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::ReadBytes;
using test::WriteBytes;
using Outcome = WordRemoval::Outcome;

class WordRemovalTest : public test::SessionFixture {
  protected:
    WordRemovalTest() {
        WriteBytes(main_, Lines({L"hello", L"help"}));
        WriteBytes(custom_, Lines({L"held", L"help"}));
    }
    std::string Lines(const test::Words& words) {
        std::string lines;
        for (const std::wstring& word : words) lines += EntryLine(word, dictionaries_.Page());
        return lines;
    }

    Path main_ = dictionaries_.MainPathFor(L"he");
    Path custom_ = dictionaries_.CustomPath(L"CUSTOM.DIC");
    WordRemoval removal_{dictionaries_, ui_};
};

TEST_F(WordRemovalTest, TakesTheUsersOwnWordsFirstAndWithoutAsking) {
    EXPECT_EQ(removal_.Remove(L"help").value(), Outcome::Removed);
    EXPECT_TRUE(ui_.shown.empty());
    EXPECT_EQ(ReadBytes(custom_), Lines({L"held"}));
    EXPECT_EQ(ReadBytes(main_), Lines({L"hello", L"help"}));
    EXPECT_FALSE(dictionaries_.IsWordInCustomDictionaries(L"help"));
    EXPECT_FALSE(removal_.Last()->from_main);
}

TEST_F(WordRemovalTest, AsksBeforeItTouchesTheMainDictionary) {
    ui_.answer = Answer::No;
    EXPECT_EQ(removal_.Remove(L"hello").value(), Outcome::Declined);
    ASSERT_EQ(ui_.shown.size(), 1u);
    EXPECT_EQ(ui_.shown[0].buttons, MessageButtons::YesNoDefaultNo);
    EXPECT_NE(ui_.shown[0].text.find(L"'hello'"), std::wstring::npos);
    EXPECT_EQ(ReadBytes(main_), Lines({L"hello", L"help"}));
    EXPECT_FALSE(removal_.Last());

    ui_.answer = Answer::Yes;
    EXPECT_EQ(removal_.Remove(L"hello").value(), Outcome::Removed);
    EXPECT_EQ(ReadBytes(main_), Lines({L"help"}));
    EXPECT_TRUE(removal_.Last()->from_main);
    EXPECT_FALSE(dictionaries_.IsWordInDictionaries(L"hello", Scope::MainAndCustom));
}

TEST_F(WordRemovalTest, PutsBackWhatItTook) {
    struct Case {
        const wchar_t* word;
        Path file;
    };
    for (const Case& row : {Case{L"hello", main_}, Case{L"held", custom_}}) {
        const std::string before = ReadBytes(row.file);
        ASSERT_EQ(removal_.Remove(row.word).value(), Outcome::Removed);
        ASSERT_NE(ReadBytes(row.file), before);
        ASSERT_TRUE(removal_.PutBack());
        EXPECT_EQ(ReadBytes(row.file), before);
        EXPECT_TRUE(dictionaries_.IsWordInDictionaries(row.word, Scope::MainAndCustom));
        EXPECT_FALSE(removal_.Last());
        EXPECT_TRUE(removal_.PutBack()) << "there is nothing left to do";
        EXPECT_EQ(ReadBytes(row.file), before);
    }
}

TEST_F(WordRemovalTest, AWordOfNoDictionaryIsNotAskedAbout) {
    EXPECT_EQ(removal_.Remove(L"zebra").value(), Outcome::NotFound);
    EXPECT_EQ(removal_.Remove(L"").value(), Outcome::NotFound);
    EXPECT_TRUE(ui_.shown.empty());
    EXPECT_FALSE(removal_.Last());
}

}  // namespace
}  // namespace wordhawk
