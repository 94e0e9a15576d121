#include "dict/dictionary_file.h"
#include "dict/phonetic_key.h"
#include "tests/windows/main_window/main_window_fixture.h"

#include <gmock/gmock.h>

#include <commctrl.h>

namespace wordhawk::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SuggestionControls : public MainWindowTest {
  protected:
    void Move(Slider& slider, int value) {
        slider.SetValue(value);
        SendMessageW(GetParent(slider.Handle()), WM_HSCROLL, TB_THUMBTRACK,
                     reinterpret_cast<LPARAM>(slider.Handle()));
    }
    void LetGo(Slider& slider) {
        SendMessageW(GetParent(slider.Handle()), WM_HSCROLL, TB_ENDTRACK,
                     reinterpret_cast<LPARAM>(slider.Handle()));
        Pump();
    }
    /// Presses and releases a button of the mouse on a row of a list.
    void ClickRow(ListBox& list, int row, UINT down, UINT up) {
        RECT bounds{};
        SendMessageW(list.Handle(), LB_GETITEMRECT, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&bounds));
        const LPARAM at = MAKELPARAM(bounds.left + 3, (bounds.top + bounds.bottom) / 2);
        SendMessageW(list.Handle(), down, 0, at);
        SendMessageW(list.Handle(), up, 0, at);
        Pump();
    }
    void ExpectSelectionAgreesWithBox() {
        const int row = Controls().lstSug.Selected();
        EXPECT_EQ(Controls().lstSco.Selected(), row);
        if (row < 0) return;
        EXPECT_EQ(Controls().txtChgTo.Text(), Controls().lstSug.Item(row));
    }
    void Suggest(std::wstring_view word) {
        Controls().txtChgTo.SetText(word);
        Click(Controls().cmdSuggestions);
    }
};

TEST_F(SuggestionControls, WordGetsItsSuggestionsWithScoresInStepAndTheBestTaken) {
    Setting(L"ScoreBox", L"1");
    OpenWith(L"a recieve word");
    EXPECT_THAT(Suggested(), ElementsAre(L"receive"));
    EXPECT_EQ(Trim(Controls().lstSco.Item(0)), L"86%");
    EXPECT_EQ(Controls().lstSug.Selected(), 0);
    EXPECT_EQ(Controls().lstSco.Selected(), 0);
    EXPECT_EQ(Controls().txtChgTo.Text(), L"receive");
    EXPECT_EQ(Controls().lblCnt.Text(), L"1 - Sugg&estion:");
}

TEST_F(SuggestionControls, CaseOfTheDocumentsWordIsTakenOver) {
    struct Case {
        const char* reason;
        const wchar_t* text;
        const wchar_t* taken;
    };
    const Case cases[] = {
        {"lower case", L"recieve", L"receive"},
        {"capitals", L"RECIEVE", L"RECEIVE"},
        {"capital first letter", L"Recieve", L"Receive"},
    };
    Setting(L"IgnoreUCase", L"0");
    Open();
    for (const Case& row : cases) {
        SCOPED_TRACE(row.reason);
        Check(row.text);
        EXPECT_EQ(Controls().txtChgTo.Text(), row.taken);
    }
}

TEST_F(SuggestionControls, NoneIsSaidAndCannotBeTaken) {
    OpenWith(L"xqzwv dog");
    EXPECT_THAT(Suggested(), ElementsAre(L"(no suggestions)"));
    EXPECT_EQ(Controls().lstSco.Item(0), L" ");
    EXPECT_EQ(Controls().txtChgTo.Text(), L"");
    EXPECT_FALSE(Controls().cmdChange.Enabled());
    Controls().txtChgTo.SetText(L"mine");
    ChooseIn(Controls().lstSug, 0);
    EXPECT_EQ(Controls().txtChgTo.Text(), L"mine");
    EXPECT_EQ(Controls().lblCnt.Text(), L"0 - Sugg&estions:");
}

TEST_F(SuggestionControls, SingleLetterLeavesTheListsAsTheyWere) {
    OpenWith(L"recieve");
    Suggest(L"q");
    EXPECT_THAT(Suggested(), ElementsAre(L"receive"));
}

TEST_F(SuggestionControls, BothListsAlwaysShowTheSameRows) {
    Setting(L"ScoreBox", L"1");
    Setting(L"ScoreValue", L"0");
    Setting(L"Diversity", L"9");
    OpenWith(L"thex");
    ASSERT_GT(Controls().lstSug.Count(), 5);
    ASSERT_EQ(Controls().lstSug.Count(), Controls().lstSco.Count());
    SetWindowPos(Controls().lstSug.Handle(), nullptr, 0, 0, 80, 40, SWP_NOMOVE | SWP_NOZORDER);
    SetWindowPos(Controls().lstSco.Handle(), nullptr, 0, 0, 80, 40, SWP_NOMOVE | SWP_NOZORDER);
    SendMessageW(Controls().lstSug.Handle(), WM_VSCROLL, SB_BOTTOM, 0);
    EXPECT_GT(Controls().lstSug.Top(), 0);
    EXPECT_EQ(Controls().lstSco.Top(), Controls().lstSug.Top());
    SendMessageW(Controls().lstSco.Handle(), WM_VSCROLL, SB_TOP, 0);
    EXPECT_EQ(Controls().lstSug.Top(), 0);
    ChooseIn(Controls().lstSco, 3);
    EXPECT_EQ(Controls().lstSug.Selected(), 3);
    ChooseIn(Controls().lstSug, 2);
    EXPECT_EQ(Controls().lstSco.Selected(), 2);
    EXPECT_EQ(EqualIgnoringCase(Controls().txtChgTo.Text(), Controls().lstSug.Item(2)), true);
}

TEST_F(SuggestionControls, PressOnTheSelectedSuggestionTakesItAgain) {
    OpenWith(L"recieve");
    Controls().txtChgTo.SetText(L"mine");
    SendMessageW(Controls().lstSug.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(Controls().lstSug.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(Controls().txtChgTo.Text(), L"receive");
}

TEST_F(SuggestionControls, SelectionAndBoxAgreeWhateverSelectsOrTypes) {
    Setting(L"ScoreBox", L"1");
    Setting(L"ScoreValue", L"40");
    Setting(L"Diversity", L"3");
    OpenWith(L"thex");
    ASSERT_GT(Controls().lstSug.Count(), 3);
    ClickRow(Controls().lstSug, 2, WM_RBUTTONDOWN, WM_RBUTTONUP);
    EXPECT_EQ(Controls().lstSug.Selected(), 2);
    ExpectSelectionAgreesWithBox();
    ClickRow(Controls().lstSco, 1, WM_LBUTTONDOWN, WM_LBUTTONUP);
    EXPECT_EQ(Controls().lstSug.Selected(), 1);
    ExpectSelectionAgreesWithBox();
    Controls().txtChgTo.SetText(L"mine");
    EXPECT_EQ(Controls().lstSug.Selected(), -1);
    ExpectSelectionAgreesWithBox();
    ClickRow(Controls().lstSug, 0, WM_LBUTTONDOWN, WM_LBUTTONUP);
    EXPECT_EQ(Controls().lstSug.Selected(), 0);
    ExpectSelectionAgreesWithBox();
}

TEST_F(SuggestionControls, PlaceholderIsNeverSelected) {
    Setting(L"ScoreBox", L"1");
    OpenWith(L"xqzwv");
    ASSERT_THAT(Suggested(), ElementsAre(L"(no suggestions)"));
    const auto expect_none = [&] {
        EXPECT_EQ(Controls().lstSug.Selected(), -1);
        EXPECT_EQ(Controls().lstSco.Selected(), -1);
    };
    ClickRow(Controls().lstSug, 0, WM_LBUTTONDOWN, WM_LBUTTONUP);
    expect_none();
    ClickRow(Controls().lstSco, 0, WM_LBUTTONDOWN, WM_LBUTTONUP);
    expect_none();
    ClickRow(Controls().lstSug, 0, WM_RBUTTONDOWN, WM_RBUTTONUP);
    expect_none();
    EXPECT_FALSE(fakes_.menus.enabled[1]);
    EXPECT_FALSE(fakes_.menus.enabled[3]);
    Controls().lstSug.SetFocus();
    Press(VK_DOWN);
    expect_none();
}

TEST_F(SuggestionControls, AltAndADigitPickASuggestion) {
    Setting(L"ScoreValue", L"40");
    Setting(L"Diversity", L"3");
    OpenWith(L"thex");
    ASSERT_GT(Controls().lstSug.Count(), 2);
    Press('2', With::Alt);
    EXPECT_EQ(Controls().lstSug.Selected(), 1);
    EXPECT_EQ(Controls().txtChgTo.Text(), Controls().lstSug.Item(1));
    Press('9', With::Alt);
    EXPECT_EQ(Controls().lstSug.Selected(), std::min(8, Controls().lstSug.Count() > 8 ? 8 : 1));
}

TEST_F(SuggestionControls, SlidersShowAndSteerTheSearch) {
    OpenWith(L"recieve");
    EXPECT_EQ(Controls().lblScore.Text(), L"80% - 100% Match");
    EXPECT_EQ(Controls().lbldiversity.Text(), L"Less- diversity(2) -More");
    Move(Controls().hsScore, 100);
    EXPECT_EQ(Controls().lblScore.Text(), L"100% Match");
    Suggest(L"recieve");
    EXPECT_THAT(Suggested(), ElementsAre(L"(no suggestions)"));
    Move(Controls().hsScore, 0);
    EXPECT_EQ(Controls().lblScore.Text(), L"0% - 100% Match");
    Move(Controls().hsdiversity, 0);
    EXPECT_EQ(Controls().lbldiversity.Text(), L"Less- diversity(0) -More");
    Suggest(L"recieve");
    EXPECT_THAT(Suggested(), ElementsAre(L"(no suggestions)"));
    Suggest(L"receive");
    EXPECT_THAT(Suggested(), ElementsAre(L"receive"));
}

TEST_F(SuggestionControls, SliderLetGoFillsTheListAnewAndKeepsWhatWasChosen) {
    OpenWith(L"thex");
    const std::vector<std::wstring> before = Suggested();
    Move(Controls().hsScore, 40);
    EXPECT_EQ(Suggested(), before) << "while it is held";
    LetGo(Controls().hsScore);
    ASSERT_GT(Suggested().size(), before.size());
    ChooseIn(Controls().lstSug, 2);
    const std::wstring chosen = Controls().txtChgTo.Text();
    Move(Controls().hsdiversity, 3);
    LetGo(Controls().hsdiversity);
    EXPECT_EQ(Controls().txtChgTo.Text(), chosen);
    ExpectSelectionAgreesWithBox();
    Controls().txtChgTo.SetText(L"typed");
    Move(Controls().hsScore, 100);
    LetGo(Controls().hsScore);
    EXPECT_THAT(Suggested(), ElementsAre(L"(no suggestions)"));
    EXPECT_EQ(Controls().txtChgTo.Text(), L"typed");
}

TEST_F(SuggestionControls, SwitchIsSavedAsTheCheckMarkThatItIs) {
    Setting(L"ExtraDiversity", L"5");
    Open();
    EXPECT_TRUE(Form().Menus().mnuDiversity->Checked());
    Form().Unload();
    EXPECT_EQ(StoredSetting(L"Settings", L"ExtraDiversity"), L"1");
}

TEST_F(SuggestionControls, SlidersAndSwitchAreSavedWhenTheWindowCloses) {
    Open();
    Move(Controls().hsScore, 65);
    Move(Controls().hsdiversity, 4);
    Form().MenuCommands().mnuDiversity_Click();
    Form().Unload();
    EXPECT_EQ(StoredSetting(L"Settings", L"ScoreValue"), L"65");
    EXPECT_EQ(StoredSetting(L"Settings", L"Diversity"), L"4");
    EXPECT_EQ(StoredSetting(L"Settings", L"ExtraDiversity"), L"1");
    Reopen();
    EXPECT_EQ(Controls().hsScore.Value(), 65);
    EXPECT_EQ(Controls().lblScore.Text(), L"65% - 100% Match");
    EXPECT_TRUE(Form().Menus().mnuDiversity->Checked());
}

TEST_F(SuggestionControls, SearchModeIsChosenFromTheMenuAndStoredAtOnce) {
    Open();
    Controls().txtChgTo.SetText(L"x");
    EXPECT_TRUE(Form().Menus().mnuSearchBy[0]->Checked());
    fakes_.menus.choose = 2;
    RightClick(Controls().cmdSuggestions);
    EXPECT_FALSE(Form().Menus().mnuSearchBy[0]->Checked());
    EXPECT_TRUE(Form().Menus().mnuSearchBy[2]->Checked());
    EXPECT_EQ(StoredSetting(L"Settings", L"SortBy"), L"2");
}

TEST_F(SuggestionControls, RemovingTheOnlySuggestionTakesItOutOfItsDictionary) {
    WriteBytes(folder_ / L"data" / "Dictionarys" / "Custom" / "CUSTOM.DIC",
               "aaa,65000\r\n" + EntryLine(L"xqzwvi", AnsiCodePage::Get(1252)));
    OpenWith(L"xqzwv");
    ASSERT_THAT(Suggested(), ElementsAre(L"xqzwvi"));
    fakes_.menus.choose = 1;
    RightClick(Controls().lstSug);
    EXPECT_THAT(Suggested(), ElementsAre(L"(no suggestions)"));
    EXPECT_EQ(Controls().lstSco.Item(0), L" ");
    EXPECT_EQ(Controls().lblCnt.Text(), L"0 - Sugg&estions:");
    EXPECT_EQ(ReadBytes(Custom(L"CUSTOM.DIC")), "aaa,65000\r\n");
    EXPECT_EQ(Controls().lblStatus.Text(), L"Removed 'xqzwvi' from CUSTOM.DIC.");
}

TEST_F(SuggestionControls, RemovingAMainWordAsksAndCanBeTakenBack) {
    OpenWith(L"recieve");
    const Path main = program_->dictionaries.MainPathFor(L"receive");
    const std::string before = ReadBytes(main);
    fakes_.menus.choose = 1;
    fakes_.ui.answer = Answer::No;
    RightClick(Controls().lstSug);
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_EQ(ReadBytes(main), before);
    EXPECT_THAT(Suggested(), ElementsAre(L"receive"));

    fakes_.ui.answer = Answer::Yes;
    RightClick(Controls().lstSug);
    EXPECT_EQ(ReadBytes(main).find("receive,"), std::string::npos);
    EXPECT_EQ(Controls().lblStatus.Text(), L"Removed 'receive' from the main dictionary.");
    EXPECT_THAT(Suggested(), ElementsAre(L"(no suggestions)"));
    Click(Controls().cmdUndoAdd);
    EXPECT_EQ(ReadBytes(main), before);
    EXPECT_EQ(Controls().lblStatus.Text(), L"Put 'receive' back into the main dictionary.");
    EXPECT_THAT(Suggested(), ElementsAre(L"receive"));
    EXPECT_FALSE(Controls().cmdUndoAdd.Visible());
}

TEST_F(SuggestionControls, MenuOfTheListCopiesAndNeedsASelection) {
    OpenWith(L"recieve");
    fakes_.menus.choose = 3;
    RightClick(Controls().lstSug);
    EXPECT_EQ(fakes_.clipboard.plain, L"receive");
    Controls().lstSug.Select(-1);
    fakes_.menus.choose = -1;
    RightClick(Controls().lstSug);
    EXPECT_FALSE(fakes_.menus.enabled[1]);
    EXPECT_FALSE(fakes_.menus.enabled[3]);
}

TEST_F(SuggestionControls, TipTellsWhyASuggestionScoredWhatItDid) {
    OpenWith(L"recieve");
    const std::wstring tip = Form().SuggestionTip(0);
    EXPECT_NE(tip.find(L"2"), std::wstring::npos) << "distance";
    EXPECT_NE(tip.find(L"86%"), std::wstring::npos) << "score";
    EXPECT_NE(tip.find(std::to_wstring(GetPhoneticKey(L"receive", program_->dictionaries.Page()))),
              std::wstring::npos)
        << "sound key";
    EXPECT_EQ(Form().SuggestionTip(1), L"");
}

}  // namespace
}  // namespace wordhawk::test
