#include "engine/suggest/suggestion_case.h"

#include "platform/text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

TEST(SuggestionCase, FollowsTheWordInTheDocument) {
    struct Case {
        const wchar_t* suggestion;
        const wchar_t* document_word;
        const wchar_t* expected;
        const char* why;
    };
    const Case cases[] = {
        {L"the", L"", L"the", "no word in the document"},
        {L"the", L"teh", L"the", "same first letter"},
        {L"the", L"TEH", L"THE", "a word in capitals"},
        {L"the", L"Teh", L"The", "a capital first letter"},
        {L"receive", L"teh", L"Receive", "another first letter, though the word is in lower case"},
        {L"Paris", L"pairs", L"Paris", "a capital of the suggestion's own stays"},
        {L"MacDonald", L"mcDonald", L"MacDonald", "only the first letter can change"},
        {L"the", L"T", L"THE", "one capital is a word in capitals"},
        {L"forty", L"40", L"FORTY", "so is a word without letters"},
        {L"\x00E9t\x00E9", L"\x00C9te", L"\x00C9t\x00E9", "accented letters"},
        {L"", L"teh", L"", "nothing to match"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ToUtf8(MatchCase(c.suggestion, c.document_word)), ToUtf8(c.expected)) << c.why;
    }
}

TEST(SuggestionCase, TheEntryForNoneIsNeverTaken) {
    EXPECT_EQ(TakeSuggestion(L"(no suggestions)", L"TEH"), std::nullopt);
    EXPECT_EQ(TakeWideSuggestion(L"(no suggestions)", L"teh"), std::nullopt);
    EXPECT_EQ(TakeSuggestion(L"the", L"TEH"), L"THE");
}

TEST(SuggestionCase, WordWithoutCapitalsGetsNoneFromTheWholeDictionary) {
    EXPECT_EQ(TakeWideSuggestion(L"the", L"hte"), L"the");
    EXPECT_EQ(TakeWideSuggestion(L"often", L""), L"often");
    EXPECT_EQ(TakeWideSuggestion(L"the", L"Hte"), L"The");
    EXPECT_EQ(TakeWideSuggestion(L"the", L"HTE"), L"THE");
}

}  // namespace
}  // namespace wordhawk
