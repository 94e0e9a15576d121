#include "platform/modSect.h"
#include "tests/windows/main_window/main_window_fixture.h"

#include <gmock/gmock.h>

namespace wordhawk::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Corrections : public MainWindowTest {};

TEST_F(Corrections, CheckListsTheWordsAndShowsTheFirst) {
    OpenWith(L"Teh lazy dog. The dgo and teh catt.");
    EXPECT_THAT(Listed(), ElementsAre(L"teh", L"dgo", L"catt"));
    EXPECT_EQ(Controls().lblNID.Text(), L"teh");
    EXPECT_EQ(Controls().lblNIL.Text(), L"3 - Not Found");
    EXPECT_EQ(Controls().lstNID.Selected(), 0);
    EXPECT_EQ(Selected(), L"Teh");
    EXPECT_TRUE(Controls().cmdIgnore.Enabled());
}

TEST_F(Corrections, ChangeGoesThroughTheOccurrencesAndThenToTheNextWord) {
    OpenWith(L"teh dog and Teh catt");
    Controls().txtChgTo.SetText(L"the");
    Click(Controls().cmdChange);
    EXPECT_EQ(DocumentText(), L"the dog and Teh catt");
    EXPECT_EQ(Selected(), L"Teh");
    EXPECT_EQ(Controls().lblNID.Text(), L"teh");
    Controls().txtChgTo.SetText(L"the");
    Click(Controls().cmdChange);
    EXPECT_EQ(DocumentText(), L"the dog and the catt");
    EXPECT_EQ(Controls().lblNID.Text(), L"catt");
    EXPECT_EQ(Selected(), L"catt");
    EXPECT_THAT(Listed(), ElementsAre(L"catt"));
}

TEST_F(Corrections, ReplacementThatHoldsTheWordIsNotFoundAgain) {
    OpenWith(L"teh one");
    Controls().txtChgTo.SetText(L"the teh thing");
    Click(Controls().cmdChange);
    EXPECT_EQ(DocumentText(), L"the teh thing one");
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(Corrections, ChangeAllReplacesWholeWordsOnlyAndOneUndoTakesAllBack) {
    OpenWith(L"catt Catt concatt CATT catts\rcatt");
    ASSERT_EQ(Controls().lblNID.Text(), L"catt");
    Controls().txtChgTo.SetText(L"cat");
    Click(Controls().cmdChangeAll);
    EXPECT_EQ(DocumentText(), L"cat cat concatt cat catts\rcat");
    SendMessageW(Controls().rtbW.Handle(), EM_UNDO, 0, 0);
    Pump();
    EXPECT_EQ(DocumentText(), L"catt Catt concatt CATT catts\rcatt");
}

TEST_F(Corrections, UndoOfEditsAfterAChangeAllGoesStepByStepAndThenTakesItWhole) {
    OpenWith(L"catt and catt");
    Controls().txtChgTo.SetText(L"cat");
    Click(Controls().cmdChangeAll);
    Controls().document.Select({0, 0});
    Controls().rtbW.ReplaceSelection(L"My ");
    ASSERT_EQ(DocumentText(), L"My cat and cat");
    Controls().document.Undo();
    EXPECT_EQ(DocumentText(), L"cat and cat");
    Controls().document.Undo();
    EXPECT_EQ(DocumentText(), L"catt and catt");
    EXPECT_FALSE(Controls().document.CanUndo());
}

TEST_F(Corrections, IgnoreLeavesTheTextAndTheWordUnknown) {
    OpenWith(L"teh dog teh");
    Click(Controls().cmdIgnore);
    EXPECT_EQ(Controls().document.Selection(), (TextRange{8, 3}));
    Click(Controls().cmdIgnore);
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_EQ(DocumentText(), L"teh dog teh");
    Click(Controls().cmdSpellcheck);
    EXPECT_THAT(Listed(), ElementsAre(L"teh"));
}

TEST_F(Corrections, NextWordIsTheEarliestInTheTextNotInTheList) {
    OpenWith(L"aaax bbbx cccx");
    ChooseIn(Controls().lstNID, 2);
    EXPECT_EQ(Selected(), L"cccx");
    Click(Controls().cmdIgnoreAll);
    EXPECT_EQ(Controls().lblNID.Text(), L"aaax");
}

TEST_F(Corrections, WordThatLeftTheTextComesFirst) {
    OpenWith(L"aaax bbbx cccx");
    Controls().document.Select({10, 4});
    Controls().rtbW.ReplaceSelection(L"dog");
    Click(Controls().cmdIgnoreAll);
    EXPECT_EQ(Controls().lblNID.Text(), L"cccx");
    EXPECT_EQ(Selected(), L"");
}

TEST_F(Corrections, AddToMainAsksAndNoChangesNothing) {
    fakes_.ui.answer = Answer::No;
    OpenWith(L"teh dog");
    Click(Controls().cmdAdd[0]);
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_EQ(fakes_.ui.shown[0].buttons, MessageButtons::YesNoDefaultNo);
    EXPECT_THAT(Listed(), ElementsAre(L"teh"));
    fakes_.ui.answer = Answer::Yes;
    Click(Controls().cmdAdd[0]);
    EXPECT_THAT(Listed(), IsEmpty());
    Click(Controls().cmdSpellcheck);
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(Corrections, AddToMainDoesNotAskWithTheWarningOff) {
    Flag(254, 0);
    OpenWith(L"teh dgo");
    Click(Controls().cmdAdd[0]);
    EXPECT_THAT(fakes_.ui.shown, IsEmpty());
    EXPECT_THAT(Listed(), ElementsAre(L"dgo"));
    EXPECT_EQ(Controls().lblStatus.Text(), L"Added 'teh' to the main dictionary.");
    Click(Controls().cmdUndoAdd);
    EXPECT_EQ(Controls().lblStatus.Text(), L"Took 'teh' out of the main dictionary.");
}

TEST_F(Corrections, AddToCustomSaysWhereAndCanBeTakenBack) {
    OpenWith(L"teh dgo");
    Click(Controls().cmdAdd[1]);
    EXPECT_NE(ReadBytes(Custom(L"CUSTOM.DIC")).find("teh,"), std::string::npos);
    EXPECT_EQ(Controls().lblStatus.Text(), L"Added 'teh' to CUSTOM.DIC.");
    ASSERT_TRUE(Controls().cmdUndoAdd.Visible());
    EXPECT_EQ(Controls().lblNID.Text(), L"dgo");

    Click(Controls().cmdUndoAdd);
    EXPECT_EQ(ReadBytes(Custom(L"CUSTOM.DIC")), "");
    EXPECT_THAT(Listed(), ElementsAre(L"teh", L"dgo"));
    EXPECT_EQ(Controls().lblNID.Text(), L"teh");
    EXPECT_FALSE(Controls().cmdUndoAdd.Visible());
    EXPECT_EQ(Controls().lblStatus.Text(), L"Took 'teh' out of CUSTOM.DIC.");
}

TEST_F(Corrections, PopUpOfCustAddsToTheChosenDictionary) {
    modSect::WriteSetting(L"Dictionarys", L"0", L"CUSTOM.DIC", folder_ / L"data" / "Wordhawk.ini");
    modSect::WriteSetting(L"Dictionarys", L"1", L"Names & more.DIC",
                          folder_ / L"data" / "Wordhawk.ini");
    OpenWith(L"teh dgo");
    fakes_.menus.choose = 1;
    RightClick(Controls().cmdAdd[1]);
    ASSERT_THAT(fakes_.menus.shown, ElementsAre(Form().Menus().mnuCust.Handle()));
    EXPECT_NE(ReadBytes(Custom(L"Names & more.DIC")).find("teh,"), std::string::npos);
    EXPECT_THAT(Listed(), ElementsAre(L"dgo"));
}

TEST_F(Corrections, AddAllAddsEveryWordAndFinishes) {
    OpenWith(L"aaax bbbx cccx dddx eeex fffx gggx hhhx iiix jjjx kkkx");
    Click(Controls().cmdAddAll[1]);
    EXPECT_THAT(Listed(), IsEmpty());
    const std::string file = ReadBytes(Custom(L"CUSTOM.DIC"));
    EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 11);
    EXPECT_EQ(Controls().lblStatus.Text(), L"Added 11 words.");
    EXPECT_TRUE(IsWindowEnabled(Form().Handle()));
    EXPECT_FALSE(Controls().cmdAddAll[0].Enabled());
    EXPECT_FALSE(Controls().cmdAddAll[1].Enabled());
}

TEST_F(Corrections, FinishClearsEverythingAnnouncesAndClosesOnTheNextTick) {
    Setting(L"RemainOpen", L"0");
    OpenWith(L"teh");
    Click(Controls().cmdIgnoreAll);
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_THAT(Suggested(), IsEmpty());
    EXPECT_EQ(Controls().lblNID.Text(), L"");
    EXPECT_EQ(Controls().txtChgTo.Text(), L"");
    EXPECT_EQ(Controls().lblNIL.Text(), L"0 - Not Found");
    EXPECT_EQ(Controls().lblCnt.Text(), L"0 - Sugg&estions:");
    for (Button* button :
         {&Controls().cmdChange, &Controls().cmdChangeAll, &Controls().cmdIgnore,
          &Controls().cmdIgnoreAll, &Controls().cmdAdd[0], &Controls().cmdAddAll[1]}) {
        EXPECT_FALSE(button->Enabled()) << button->Id();
    }
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_EQ(fakes_.ui.shown[0].text, L"Spell check complete");
    EXPECT_EQ(fakes_.ui.shown[0].title, L"Spell check complete");
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(Form().CloseIsPending());
    EXPECT_TRUE(ClosesItself());
}

TEST_F(Corrections, FinishPlaysTheSoundAndStaysOpenWhenTheSettingsSaySo) {
    Setting(L"Confirmation", L"C:\\done.wav");
    OpenWith(L"teh");
    Click(Controls().cmdIgnoreAll);
    EXPECT_THAT(fakes_.sound.played, ElementsAre(L"C:\\done.wav"));
    EXPECT_THAT(fakes_.ui.shown, IsEmpty());
    Pump(300);
    EXPECT_TRUE(IsOpen());
}

TEST_F(Corrections, FinishPutsTheTextOnTheClipboardAsWanted) {
    struct Case {
        const wchar_t* clip_type;
        bool rich;
    };
    for (const Case& row : {Case{L"0", false}, Case{L"1", true}}) {
        Setting(L"SetClip", L"1");
        Setting(L"ClipType", row.clip_type);
        OpenWith(L"teh dog");
        Controls().txtChgTo.SetText(L"the");
        Click(Controls().cmdChangeAll);
        EXPECT_EQ(fakes_.clipboard.plain, L"the dog");
        EXPECT_EQ(fakes_.clipboard.rich.has_value(), row.rich);
        EXPECT_EQ(fakes_.clipboard.rich.value_or("").find("the dog") != std::string::npos,
                  row.rich);
    }
}

TEST_F(Corrections, EmptyBoxForbidsChangingButNotIgnoring) {
    OpenWith(L"teh dog");
    Controls().txtChgTo.SetText(L"  ");
    EXPECT_FALSE(Controls().cmdChange.Enabled());
    EXPECT_FALSE(Controls().cmdChangeAll.Enabled());
    EXPECT_FALSE(Controls().cmdSuggestions.Enabled());
    EXPECT_TRUE(Controls().cmdIgnore.Enabled());
    EXPECT_TRUE(Controls().cmdAdd[1].Enabled());
    Controls().txtChgTo.SetText(L"x");
    EXPECT_TRUE(Controls().cmdChange.Enabled());
}

TEST_F(Corrections, CopyDataTakesTheDocumentElseTheBox) {
    OpenWith(L"teh dog\rand cat");
    Click(Controls().cmdCopyData);
    EXPECT_EQ(fakes_.clipboard.plain, L"teh dog\rand cat");
    Controls().txtChgTo.SetText(L"thing");
    RightClick(Controls().cmdCopyData);
    EXPECT_EQ(fakes_.clipboard.plain, L"thing");
    Controls().document.LoadPlainText({});
    Controls().txtChgTo.SetText(L"other");
    Click(Controls().cmdCopyData);
    EXPECT_EQ(fakes_.clipboard.plain, L"other");
}

TEST_F(Corrections, ClickOnTheWordTakesTheSelectionCleanedAsInACheck) {
    struct Case {
        const wchar_t* selected;
        const wchar_t* taken;
    };
    OpenWith(L"teh");
    for (const Case& row : {Case{L"'Teh'", L"Teh"}, Case{L"(hello", L"(hello"}, Case{L"TEH", L""},
                            Case{L"abc123", L""}}) {
        Controls().document.LoadPlainText({row.selected});
        Controls().document.Select({0, Controls().document.Text().size()});
        SendMessageW(Controls().pic1.Handle(), WM_COMMAND,
                     MAKEWPARAM(Controls().lblNID.Id(), STN_CLICKED),
                     reinterpret_cast<LPARAM>(Controls().lblNID.Handle()));
        EXPECT_EQ(Controls().txtChgTo.Text(), row.taken);
    }
}

TEST_F(Corrections, RecentChangesAreKeptBetweenRuns) {
    OpenWith(L"teh dgo");
    Controls().txtChgTo.SetText(L"a = b");
    Click(Controls().cmdChange);
    Controls().txtChgTo.SetText(L"dog");
    Click(Controls().cmdChange);
    Form().Unload();
    Reopen();
    EXPECT_THAT(Controls().cboChgTo.Texts(), ElementsAre(L"dog", L"a = b"));
    Controls().cboChgTo.Select(1);
    Form().cboChgTo_Click();
    EXPECT_EQ(Controls().txtChgTo.Text(), L"a = b");
}

TEST_F(Corrections, DraggedButtonsChangePlacesAndKeepThemWhenTheWindowGrows) {
    Open();
    const RECT change = Controls().cmdChange.Bounds();
    const RECT ignore_all = Controls().cmdIgnoreAll.Bounds();
    RECT target{};
    GetWindowRect(Controls().cmdIgnoreAll.Handle(), &target);
    Form().Drag().Drop(Controls().cmdChange, {target.left + 5, target.top + 5});
    EXPECT_EQ(Controls().cmdChange.Bounds().left, ignore_all.left);
    EXPECT_EQ(Controls().cmdIgnoreAll.Bounds().left, change.left);
    SetWindowPos(Form().Handle(), nullptr, 0, 0, 900, 700, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_GT(Controls().cmdChange.Bounds().left, Controls().cmdIgnoreAll.Bounds().left);

    const RECT add = Controls().cmdAdd[0].Bounds();
    GetWindowRect(Controls().cmdAdd[0].Handle(), &target);
    Form().Drag().Drop(Controls().cmdChange, {target.left + 5, target.top + 5});
    EXPECT_EQ(Controls().cmdAdd[0].Bounds().left, add.left);
}

TEST_F(Corrections, AddGoesToAListedDictionary) {
    const Path ini = folder_ / L"data" / "Wordhawk.ini";
    modSect::WriteSetting(L"Dictionarys", L"0", L"", ini);
    modSect::WriteSetting(L"Dictionarys", L"1", L"TWO.DIC", ini);
    Setting(L"CustomDic", L"GONE.DIC");
    OpenWith(L"teh dgo");
    EXPECT_THAT(Controls().cboDicts.Texts(), ElementsAre(L"TWO.DIC"));
    EXPECT_EQ(Controls().cboDicts.Selected(), 0);
    Click(Controls().cmdAdd[1]);
    EXPECT_NE(ReadBytes(Custom(L"TWO.DIC")).find("teh,"), std::string::npos);
    EXPECT_FALSE(IsFile(Custom(L"GONE.DIC")));
}

TEST_F(Corrections, DictionaryThatCannotBeWrittenIsToldAndTheWordStays) {
    OpenWith(L"teh dgo");
    const Path file = Custom(L"CUSTOM.DIC");
    WriteBytes(file, "abc,12345\r\n");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    Click(Controls().cmdAdd[1]);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_NE(fakes_.ui.shown[0].text.find(L"CUSTOM.DIC"), std::wstring::npos);
    EXPECT_EQ(ReadBytes(file), "abc,12345\r\n");
    EXPECT_FALSE(Controls().cmdUndoAdd.Visible());
    EXPECT_THAT(Listed(), ElementsAre(L"teh", L"dgo"));
    EXPECT_EQ(Controls().lblNID.Text(), L"teh");
    EXPECT_EQ(Selected(), L"teh");
}

}  // namespace
}  // namespace wordhawk::test
