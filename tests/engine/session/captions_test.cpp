#include "engine/session/captions.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

TEST(Captions, CountersReadNumberAndCaption) {
    const ProgramState state;
    EXPECT_EQ(captions::NotFound(0), L"0 - Not Found");
    EXPECT_EQ(captions::NotFound(12), L"12 - Not Found");
    EXPECT_EQ(captions::NothingFoundYet(state), L"0 - Not Found");
    EXPECT_EQ(captions::SuggestionCount(state, 0), L"0 - Sugg&estions:");
    EXPECT_EQ(captions::SuggestionCount(state, 1), L"1 - Sugg&estion:");
    EXPECT_EQ(captions::SuggestionCount(state, 2), L"2 - Sugg&estions:");
    EXPECT_EQ(captions::NoSuggestionsYet(state), L"0 - Sugg&estions");
}

TEST(Captions, SlidersReadTheirValue) {
    const ProgramState state;
    EXPECT_EQ(captions::ScoreRange(state, 0), L"0% - 100% Match");
    EXPECT_EQ(captions::ScoreRange(state, 80), L"80% - 100% Match");
    EXPECT_EQ(captions::ScoreRange(state, 99), L"99% - 100% Match");
    EXPECT_EQ(captions::ScoreRange(state, 100), L"100% Match");
    EXPECT_EQ(captions::Diversity(2), L"Less- diversity(2) -More");
}

TEST(Captions, ScoresArePaddedToTheWidthOfTheLargest) {
    // A digit and "%" are as wide as two blanks.
    const auto width = [](std::wstring_view text) {
        int sum = 0;
        for (const wchar_t c : text) sum += c == L' ' ? 1 : 2;
        return sum;
    };
    EXPECT_EQ(captions::PadScoreText(captions::ScoreText(100), width), L"100%");
    EXPECT_EQ(captions::PadScoreText(captions::ScoreText(85), width), L"  85%");
    EXPECT_EQ(captions::PadScoreText(captions::ScoreText(5), width), L"    5%");
    const auto blanks_without_width = [](std::wstring_view text) {
        return static_cast<int>(text.size() - text.find_first_not_of(L' '));
    };
    EXPECT_EQ(captions::PadScoreText(L"5%", blanks_without_width).substr(62), L"  5%")
        << "it ends even then";
}

TEST(Captions, TheQuestionBeforeAMainAddIsLaidOutInParagraphs) {
    const ProgramState state;
    EXPECT_EQ(captions::MainAddTitle(state), L"Add word(s) to your main dictionary?");
    EXPECT_EQ(captions::MainAddQuestion(state),
              L"Please confirm main dictionary add.\r\n\r\n"
              L"Result:\r\n\r\n"
              L"  a.    Words added to your main dictionary cannot be deleted.\r\n"
              L"  b.    Until the next word is added, Undo takes a single word out again.\r\n\r\n"
              L"Alternate:\r\n\r\n"
              L"a.    Words added to your custom dictionary can be deleted.\r\n\r\n"
              L"Do you want to add the word(s) to your main dictionary?");
}

}  // namespace
}  // namespace wordhawk
