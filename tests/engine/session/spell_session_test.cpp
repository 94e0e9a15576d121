#include "engine/session/spell_session.h"

#include "platform/text.h"
#include "tests/engine/session/session_fixture.h"

#include <gtest/gtest.h>

#include <random>

namespace wordhawk {
namespace {

using test::Words;
using Kind = SessionStep::Kind;
class SpellSessionTest : public test::SessionFixture {};

TEST_F(SpellSessionTest, ChoosesTheWordToCorrectFirst) {
    struct Case {
        const wchar_t* text;
        Words words;
        std::size_t expected;
        const char* why;
    };
    const Case cases[] = {
        {L"one two six", {L"six", L"one", L"two"}, 1, "the earliest in the document"},
        {L"new york", {L"new york", L"new"}, 1, "the later entry on equal offsets"},
        {L"new york", {L"new", L"new york"}, 1, "whichever it is"},
        {L"one two", {L"one", L"gone", L"two"}, 1, "one that does not occur before all others"},
        {L"one two", {L"gone", L"one", L"lost", L"two"}, 2, "the last of those"},
        {L"", {L"one", L"two"}, 1, "none occurs"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Begin(c.text, c.words).kind, Kind::NewWord) << c.why;
        EXPECT_EQ(session_.CurrentIndex(), c.expected) << c.why;
        EXPECT_EQ(session_.CurrentWord(), c.words[c.expected]) << c.why;
    }
}

TEST_F(SpellSessionTest, BeginningSelectsTheFirstOccurrence) {
    Begin(L"Say Teh and teh", {L"teh"});
    EXPECT_EQ(document_.SelectedText(), L"Teh");
    EXPECT_EQ(session_.OccurrenceStart(), 4);
    EXPECT_EQ(session_.SearchPosition(), 7);
    EXPECT_EQ(session_.OccurrencesOf(0), 2u);
    EXPECT_EQ(session_.NotFoundCaption(), L"1 - Not Found");
}

TEST_F(SpellSessionTest, NoUnknownWordsFinishNothing) {
    session_.SetCompletionNotice(true);
    settings_.RemainOpen = false;
    const SessionStep step = Begin(L"all is well", {});
    EXPECT_EQ(step.kind, Kind::Nothing);
    EXPECT_EQ(step.notice, CompletionNotice::None);
    EXPECT_FALSE(step.close);
    EXPECT_FALSE(session_.CurrentIndex());
}

TEST_F(SpellSessionTest, AWordThatNoLongerOccursLeavesNothingSelected) {
    Begin(L"one two", {L"gone"});
    EXPECT_EQ(document_.Selection().length, 0u);
    EXPECT_EQ(session_.SearchPosition(), kNotFound);
    session_.Change(L"here");
    EXPECT_EQ(document_.Text(), L"one two") << "nothing selected, nothing replaced";
    EXPECT_TRUE(session_.Words().empty());
    EXPECT_TRUE(recent_.Items().empty());
}

TEST_F(SpellSessionTest, ChangeGoesFromOccurrenceToOccurrenceAndThenToTheNextWord) {
    Begin(L"teh cat and Teh dgo", {L"teh", L"dgo"});
    SessionStep step = session_.Change(L"the");
    EXPECT_EQ(step.kind, Kind::NextOccurrence);
    EXPECT_TRUE(step.recent_changed);
    EXPECT_EQ(document_.SelectedText(), L"Teh");
    step = session_.Change(L"the");
    EXPECT_EQ(step.kind, Kind::NewWord);
    EXPECT_EQ(step.removed, 0u);
    EXPECT_EQ(document_.Text(), L"the cat and the dgo");
    EXPECT_EQ(document_.SelectedText(), L"dgo");
    EXPECT_EQ(session_.Words(), Words{L"dgo"});
    EXPECT_EQ(recent_.Items(), Words{L"the"});
}

TEST_F(SpellSessionTest, ChangeDoesNotFindTheWordInWhatItInserted) {
    Begin(L"cat, cat", {L"cat"});
    session_.Change(L"cat and cat");
    EXPECT_EQ(session_.OccurrenceStart(), 13);
    EXPECT_EQ(session_.Change(L"dog").kind, Kind::Finished);
    EXPECT_EQ(document_.Text(), L"cat and cat, dog");
}

TEST_F(SpellSessionTest, ChangeReplacesWhatThePersonSelectedInstead) {
    Begin(L"one teh end teh", {L"teh"});
    document_.Select({8, 3});
    EXPECT_EQ(session_.Change(L"END").kind, Kind::NextOccurrence);
    EXPECT_EQ(document_.Text(), L"one teh END teh");
    EXPECT_EQ(session_.OccurrenceStart(), 12) << "the search goes on behind the word's own place";
}

TEST_F(SpellSessionTest, ABlankReplacementDoesNothing) {
    Begin(L"teh end", {L"teh"});
    for (const wchar_t* blank : {L"", L"  "}) {
        EXPECT_EQ(session_.Change(blank).kind, Kind::Nothing);
        EXPECT_EQ(session_.ChangeAll(blank).kind, Kind::Nothing);
    }
    EXPECT_EQ(document_.Text(), L"teh end");
    EXPECT_EQ(session_.Words().size(), 1u);
}

TEST_F(SpellSessionTest, ChangeAllReplacesEveryWholeWordAsOneStepOfUndo) {
    const std::wstring before = L"Cat cat concatenate CAT's xat";
    Begin(before, {L"xat", L"cat"});
    const SessionStep step = session_.ChangeAll(L"Cat");
    EXPECT_EQ(step.kind, Kind::NewWord);
    EXPECT_EQ(step.removed, 1u);
    EXPECT_EQ(document_.Text(), L"Cat Cat concatenate Cat's xat");
    EXPECT_EQ(document_.SelectedText(), L"xat");
    EXPECT_TRUE(recent_.Items().empty()) << "only Change records its replacement";
    document_.Undo();
    EXPECT_EQ(document_.Text(), before);
}

TEST_F(SpellSessionTest, IgnoreVisitsEveryOccurrenceAndChangesNothing) {
    Begin(L"teh dgo teh", {L"teh", L"dgo"});
    EXPECT_EQ(session_.Ignore().kind, Kind::NextOccurrence);
    EXPECT_EQ(session_.OccurrenceStart(), 8);
    const SessionStep step = session_.Ignore();
    EXPECT_EQ(step.kind, Kind::NewWord);
    EXPECT_EQ(step.removed, 0u);
    EXPECT_EQ(session_.CurrentWord(), L"dgo");
    EXPECT_EQ(document_.Text(), L"teh dgo teh");
}

TEST_F(SpellSessionTest, IgnoreAllRemovesTheFirstEntryThatDiffersOnlyInCase) {
    Begin(L"cat", {L"CAT", L"dog", L"cat"});
    session_.SelectWord(2);
    EXPECT_EQ(session_.IgnoreAll().removed, 0u);
    EXPECT_EQ(session_.Words(), (Words{L"dog", L"cat"}));
}

TEST_F(SpellSessionTest, TheEarliestRemainingWordFollowsNotTheNextEntry) {
    Begin(L"one two six ten", {L"one", L"ten", L"six", L"two"});
    session_.IgnoreAll();
    EXPECT_EQ(session_.CurrentWord(), L"two");
    session_.SelectWord(0);
    EXPECT_EQ(document_.SelectedText(), L"ten");
    session_.IgnoreAll();
    EXPECT_EQ(session_.CurrentWord(), L"two");
}

TEST_F(SpellSessionTest, WhatThePersonTypesAndUndoesCounts) {
    Begin(L"one two six", {L"one", L"two", L"six"});
    document_.Type({4, 3}, L"...");
    session_.IgnoreAll();
    EXPECT_EQ(session_.CurrentWord(), L"two") << "it no longer occurs";
    document_.Undo();
    document_.Type({0, 0}, L"six ");
    session_.IgnoreAll();
    EXPECT_EQ(session_.CurrentWord(), L"six");
    EXPECT_EQ(document_.Selection(), (TextRange{0, 3}));
    EXPECT_EQ(session_.OccurrencesOf(0), 2u);
}

TEST_F(SpellSessionTest, FinishingAnnouncesAndClosesAsTheSettingsSay) {
    struct Case {
        bool wanted;
        const wchar_t* sound;
        bool remain_open;
        CompletionNotice notice;
        bool close;
    };
    const Case cases[] = {
        {false, L"", false, CompletionNotice::None, true},
        {false, L"C:\\bell.wav", true, CompletionNotice::None, false},
        {true, L"", true, CompletionNotice::ShowMessage, false},
        {true, L"C:\\bell.wav", false, CompletionNotice::PlaySound, true},
    };
    for (const Case& c : cases) {
        session_.SetCompletionNotice(c.wanted);
        settings_.Confirmation = c.sound;
        settings_.RemainOpen = c.remain_open;
        Begin(L"teh", {L"teh"});
        const SessionStep step = session_.IgnoreAll();
        EXPECT_EQ(step.kind, Kind::Finished);
        EXPECT_EQ(step.removed, 0u);
        EXPECT_EQ(step.notice, c.notice);
        EXPECT_EQ(step.close, c.close);
        EXPECT_EQ(session_.CurrentWord(), L"");
        EXPECT_EQ(session_.NotFoundCaption(), L"0 - Not Found");
        EXPECT_EQ(session_.Buttons(L""), ButtonStates{});
        EXPECT_EQ(document_.Selection(), (TextRange{3, 0})) << "the next key would replace it";
    }
}

TEST_F(SpellSessionTest, NothingIsLeftToDoOnceFinished) {
    Begin(L"teh", {L"teh"});
    session_.IgnoreAll();
    Progress progress;
    for (const SessionStep& step :
         {session_.Change(L"x"), session_.ChangeAll(L"x"), session_.Ignore(), session_.IgnoreAll(),
          session_.Add(AddIndex::Custom), session_.AddTo(L"A.DIC"),
          session_.AddAll(AddIndex::Custom, progress), session_.SelectWord(0),
          session_.UndoLastAdd()}) {
        EXPECT_EQ(step.kind, Kind::Nothing);
    }
}

TEST_F(SpellSessionTest, ButtonsFollowTheWordAndTheChangeToBox) {
    struct Case {
        Words words;
        const wchar_t* change_to;
        bool change, ignore, add, suggestions;
        const char* why;
    };
    const Case cases[] = {
        {{L"teh"}, L"the", true, true, true, true, "a word and a replacement"},
        {{L"teh"}, L"", false, true, true, false, "no replacement"},
        {{L"teh"}, L"  ", false, true, true, false, "a blank replacement"},
        {{L"new york"}, L"York", true, true, false, true, "a phrase is not added"},
        {{L" "}, L"x", false, true, false, true, "a blank word"},
        {{}, L"the", false, false, false, true, "any text can be looked up without a word"},
    };
    for (const Case& c : cases) {
        Begin(L"teh new york", c.words);
        const ButtonStates states = session_.Buttons(c.change_to);
        EXPECT_EQ(states, (ButtonStates{c.change, c.change, c.ignore, c.ignore, c.add, c.add,
                                        c.suggestions}))
            << c.why;
    }
}

/// The same walk told plainly: every search goes through the whole text.
struct PlainWalk {
    std::wstring text;
    Words words;
    std::wstring current;
    TextRange selection;
    TextOffset start = kNotFound, position = kNotFound;

    TextOffset Find(TextOffset from) const {
        return from < 0 ? kNotFound : FindWordFrom(text, current, static_cast<std::size_t>(from));
    }
    void Select(TextOffset at) {
        start = at;
        position = at < 0 ? kNotFound : at + static_cast<TextOffset>(current.size());
        selection = at < 0 ? TextRange{selection.start, 0}
                           : TextRange{static_cast<std::size_t>(at), current.size()};
    }
    void SelectNextWord() {
        current.clear();
        if (words.empty()) return;
        TextOffset best = 0;
        for (std::size_t i = 0; i < words.size(); ++i) {
            const TextOffset offset = FindWordFrom(text, words[i], 0);
            if (i > 0 && offset > best) continue;
            best = offset;
            current = words[i];
        }
        Select(best);
    }
    void IgnoreAll() {
        for (std::size_t i = 0; i < words.size(); ++i) {
            if (!EqualIgnoringCase(words[i], current)) continue;
            words.erase(words.begin() + static_cast<std::ptrdiff_t>(i));
            break;
        }
        SelectNextWord();
    }
    void Ignore() {
        const TextOffset next = Find(position);
        if (next < 0) return IgnoreAll();
        Select(next);
    }
    void Change(const std::wstring& by) {
        if (selection.length > 0) {
            text.replace(selection.start, selection.length, by);
            selection = {selection.start + by.size(), 0};
        }
        if (position >= 0) position = start + static_cast<TextOffset>(by.size());
        Ignore();
    }
    void ChangeAll(const std::wstring& by) {
        for (TextOffset at = 0; (at = Find(at)) >= 0; at += static_cast<TextOffset>(by.size())) {
            text.replace(static_cast<std::size_t>(at), current.size(), by);
        }
        IgnoreAll();
    }
};

TEST_F(SpellSessionTest, WalksAsSearchingTheWholeTextForEachWordWould) {
    std::mt19937 random(3);
    const auto number = [&](std::size_t below) { return random() % below; };
    const auto text_of = [&](std::size_t shortest, std::size_t longest) {
        static const std::wstring letters = L"aabbAB'-   \r";
        std::wstring text(shortest + number(longest - shortest + 1), L' ');
        for (wchar_t& c : text) c = letters[number(letters.size())];
        return text;
    };
    for (int round = 0; round < 600; ++round) {
        PlainWalk plain;
        plain.text = text_of(0, 80);
        for (std::size_t i = number(9); i-- > 0;) plain.words.push_back(text_of(1, 3));
        Begin(plain.text, plain.words);
        plain.SelectNextWord();
        for (int step = 0; !plain.words.empty() && step < 40; ++step) {
            const std::wstring by = text_of(1, 4) + L"a";
            if (number(6) == 0) {
                const TextRange range{number(plain.text.size() + 1), 0};
                document_.Type(range, by);
                plain.text.insert(range.start, by);
            }
            switch (number(6)) {
                case 0: session_.Ignore(), plain.Ignore(); break;
                case 1: session_.IgnoreAll(), plain.IgnoreAll(); break;
                case 2:
                    session_.ChangeAll(by),
                        Trim(plain.current).empty() ? void() : plain.ChangeAll(by);
                    break;
                default:
                    session_.Change(by), Trim(plain.current).empty() ? void() : plain.Change(by);
                    break;
            }
            ASSERT_EQ(document_.Text(), plain.text) << round << ", " << step;
            ASSERT_EQ(session_.Words(), plain.words) << round << ", " << step;
            ASSERT_EQ(session_.CurrentWord(), plain.current) << round << ", " << step;
            if (plain.words.empty()) break;
            ASSERT_EQ(session_.OccurrenceStart(), plain.start) << round << ", " << step;
            ASSERT_EQ(session_.SearchPosition(), plain.position) << round << ", " << step;
        }
    }
}

}  // namespace
}  // namespace wordhawk
