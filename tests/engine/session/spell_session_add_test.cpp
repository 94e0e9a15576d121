#include "engine/session/captions.h"
#include "engine/session/spell_session.h"
#include "tests/engine/session/session_fixture.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::ReadBytes;
using test::Words;
using test::WriteBytes;
using Kind = SessionStep::Kind;

constexpr int kWarningFlag = 254;

class SpellSessionAddTest : public test::SessionFixture {
  protected:
    Path Custom(std::wstring_view name = L"CUSTOM.DIC") { return dictionaries_.CustomPath(name); }
    Path Main(std::wstring_view word) { return dictionaries_.MainPathFor(word); }
    Progress silent_;
};

TEST_F(SpellSessionAddTest, CustomAddWritesTheWordAndGoesOnWithoutAsking) {
    Begin(L"hello wrold hello", {L"hello", L"wrold"});
    const SessionStep step = session_.Add(AddIndex::Custom);
    EXPECT_TRUE(ui_.shown.empty());
    EXPECT_EQ(ReadBytes(Custom()), "hello,72400\r\n");
    EXPECT_EQ(step.kind, Kind::NewWord);
    EXPECT_EQ(step.removed, 0u);
    ASSERT_TRUE(step.added);
    EXPECT_EQ(step.added->word, L"hello");
    EXPECT_EQ(step.added->file, Custom());
    EXPECT_EQ(session_.CurrentWord(), L"wrold");
    EXPECT_TRUE(dictionaries_.IsWordInDictionaries(L"hello", Scope::MainAndCustom));
}

TEST_F(SpellSessionAddTest, MainAddAsksFirstAndOnlyYesGoesOn) {
    Begin(L"hello", {L"hello"});
    EXPECT_FALSE(dictionaries_.IsWordInDictionaries(L"hello", Scope::MainOnly));
    ui_.answer = Answer::No;
    EXPECT_EQ(session_.Add(AddIndex::Main).kind, Kind::Nothing);
    EXPECT_EQ(session_.AddAll(AddIndex::Main, silent_).kind, Kind::Nothing);
    ASSERT_EQ(ui_.shown.size(), 2u);
    EXPECT_EQ(ui_.shown[0].text, captions::MainAddQuestion(state_));
    EXPECT_EQ(ui_.shown[0].title, captions::MainAddTitle(state_));
    EXPECT_EQ(ui_.shown[0].icon, MessageIcon::Question);
    EXPECT_EQ(ui_.shown[0].buttons, MessageButtons::YesNoDefaultNo);
    EXPECT_EQ(session_.Words(), Words{L"hello"});
    EXPECT_EQ(session_.CurrentWord(), L"hello");
    EXPECT_FALSE(IsFile(Main(L"hello")));

    ui_.answer = Answer::Yes;
    EXPECT_EQ(session_.Add(AddIndex::Main).kind, Kind::Finished);
    EXPECT_EQ(ReadBytes(Main(L"hello")), "hello,72400\r\n");
    EXPECT_TRUE(dictionaries_.IsWordInDictionaries(L"hello", Scope::MainOnly))
        << "known at once, though it was looked up before";
}

TEST_F(SpellSessionAddTest, MainAddDoesNotAskWithTheWarningOff) {
    flags_.Set(kWarningFlag, 0);
    Begin(L"hello", {L"hello"});
    EXPECT_EQ(session_.Add(AddIndex::Main).kind, Kind::Finished);
    EXPECT_TRUE(ui_.shown.empty());
    EXPECT_TRUE(IsFile(Main(L"hello")));
}

TEST_F(SpellSessionAddTest, AddToWritesTheChosenDictionary) {
    Begin(L"hello", {L"hello"});
    const SessionStep step = session_.AddTo(L"MEDICAL.DIC");
    EXPECT_EQ(ReadBytes(Custom(L"MEDICAL.DIC")), "hello,72400\r\n");
    EXPECT_FALSE(IsFile(Custom()));
    EXPECT_TRUE(ui_.shown.empty());
    ASSERT_TRUE(step.added);
    EXPECT_EQ(step.added->index, AddIndex::Custom);
}

TEST_F(SpellSessionAddTest, APhraseIsNotAdded) {
    Begin(L"new york", {L"new york"});
    EXPECT_EQ(session_.Add(AddIndex::Custom).kind, Kind::Nothing);
    EXPECT_EQ(session_.AddAll(AddIndex::Custom, silent_).kind, Kind::Nothing);
    EXPECT_EQ(session_.Words().size(), 1u);
    EXPECT_FALSE(IsFile(Custom()));
}

TEST_F(SpellSessionAddTest, AddAllWritesEveryWordAndFinishes) {
    settings_.RemainOpen = false;
    Begin(L"hello wrold", {L"hello", L"wrold"});
    // Looked up before, as the check pass does, so that the files are in the cache.
    EXPECT_FALSE(dictionaries_.IsWordInDictionaries(L"hello", Scope::MainOnly));
    EXPECT_FALSE(dictionaries_.IsWordInDictionaries(L"wrold", Scope::MainOnly));
    const SessionStep step = session_.AddAll(AddIndex::Main, silent_);
    EXPECT_EQ(step.kind, Kind::Finished);
    EXPECT_TRUE(step.close);
    EXPECT_FALSE(step.failure);
    EXPECT_TRUE(session_.Words().empty());
    EXPECT_EQ(ui_.busy_depth, 0);
    for (const wchar_t* word : {L"hello", L"wrold"}) {
        EXPECT_TRUE(dictionaries_.IsWordInDictionaries(word, Scope::MainOnly));
    }
}

TEST_F(SpellSessionAddTest, StoppingAddAllKeepsTheWordsThatWereNotAdded) {
    Words words;
    std::wstring text;
    for (wchar_t c = L'a'; c < L'm'; ++c) {
        words.push_back(std::wstring(3, c));
        text += words.back() + L" ";
    }
    Begin(text, words);
    test::FakeProgress progress(4);
    const SessionStep step = session_.AddAll(AddIndex::Custom, progress);
    EXPECT_EQ(step.kind, Kind::NewWord);
    EXPECT_TRUE(step.refill);
    EXPECT_EQ(session_.Words().size() + 3, words.size());
    EXPECT_EQ(session_.CurrentWord(), L"ddd");
    EXPECT_EQ(document_.SelectedText(), L"ddd");
}

TEST_F(SpellSessionAddTest, UndoTakesTheWordOutAndBackIntoItsPlace) {
    struct Case {
        AddIndex index;
        Words words;
        const char* why;
    };
    const Case cases[] = {
        {AddIndex::Custom, {L"other", L"hello", L"wrold"}, "in the middle of the list"},
        {AddIndex::Main, {L"other", L"hello", L"wrold"}, "from the main dictionary"},
        {AddIndex::Custom, {L"hello"}, "after the check was finished by it"},
    };
    for (const Case& c : cases) {
        Begin(L"hello wrold other", c.words);
        session_.Add(c.index);
        ASSERT_TRUE(session_.LastAdded()) << c.why;
        const Path file = session_.LastAdded()->file;
        EXPECT_NE(ReadBytes(file).find("hello"), std::string::npos) << c.why;
        const SessionStep step = session_.UndoLastAdd();
        EXPECT_EQ(step.kind, Kind::NewWord) << c.why;
        EXPECT_EQ(step.inserted, c.words.size() / 2) << c.why;
        EXPECT_EQ(session_.Words(), c.words) << c.why;
        EXPECT_EQ(session_.CurrentWord(), L"hello") << c.why;
        EXPECT_EQ(document_.SelectedText(), L"hello") << c.why;
        EXPECT_EQ(ReadBytes(file).find("hello"), std::string::npos) << c.why;
        EXPECT_FALSE(dictionaries_.IsWordInDictionaries(L"hello", Scope::MainAndCustom)) << c.why;
        EXPECT_EQ(session_.UndoLastAdd().kind, Kind::Nothing) << c.why;
    }
}

TEST_F(SpellSessionAddTest, AWordThatWasThereBeforeCannotBeUndone) {
    const std::string before = "aaa,10000\r\nhello,72400\r\n";
    WriteBytes(Custom(), before);
    dictionaries_.ReloadCustomDictionaries();
    Begin(L"hello", {L"hello"});
    const SessionStep step = session_.Add(AddIndex::Custom);
    ASSERT_TRUE(step.added);
    EXPECT_TRUE(step.added->already_there);
    EXPECT_FALSE(session_.LastAdded());
    EXPECT_EQ(ReadBytes(Custom()), before);
}

TEST_F(SpellSessionAddTest, AWordThatCouldNotBeAddedStaysWithTheMessage) {
    MakeFolder(Custom());  // a folder stands where the file should be
    const Words words = {L"hello", L"wrold"};
    Begin(L"hello wrold", words);
    for (const SessionStep& step :
         {session_.Add(AddIndex::Custom), session_.AddTo(L"CUSTOM.DIC")}) {
        EXPECT_TRUE(step.failure);
        EXPECT_EQ(step.kind, Kind::Nothing);
        EXPECT_FALSE(step.added);
    }
    EXPECT_FALSE(session_.LastAdded());
    EXPECT_EQ(session_.CurrentWord(), L"hello");
    EXPECT_EQ(document_.SelectedText(), L"hello");
    const SessionStep step = session_.AddAll(AddIndex::Custom, silent_);
    EXPECT_TRUE(step.failure);
    EXPECT_EQ(step.kind, Kind::NewWord) << "not finished: nothing was added";
    EXPECT_EQ(session_.Words(), words);
}

TEST_F(SpellSessionAddTest, AddAllThatFailsHalfWayKeepsTheWordsThatAreStillUnknown) {
    flags_.Set(kWarningFlag, 0);
    MakeFolder(Main(L"wrold"));
    Begin(L"hello wrold", {L"hello", L"wrold"});
    const SessionStep step = session_.AddAll(AddIndex::Main, silent_);
    EXPECT_TRUE(step.failure);
    EXPECT_TRUE(step.refill);
    EXPECT_EQ(session_.Words(), Words{L"wrold"});
    EXPECT_EQ(session_.CurrentWord(), L"wrold");
}

}  // namespace
}  // namespace wordhawk
