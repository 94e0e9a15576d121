// Suggestions from the whole dictionary: once by a command, or for every word by a setting.

#include "tests/windows/main_window/main_window_fixture.h"

#include <gmock/gmock.h>

#include <commctrl.h>

namespace wordhawk::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class SearchEverywhere : public MainWindowTest {
  protected:
    /// None of the words begins like this one.
    static constexpr const wchar_t* kFirstLetterMissing = L"eceive";

    std::string Tip(const Control& control) const { return ToUtf8(control.ToolTipText()); }
    void ExpectFoundEverywhere() {
        ASSERT_THAT(Suggested(), Contains(L"receive"));
        EXPECT_EQ(Suggested().front(), L"receive");
        EXPECT_EQ(Controls().lstSug.Selected(), 0);
        EXPECT_FALSE(Controls().cmdEverywhere.Enabled());
        for (const Control* slider : {static_cast<Control*>(&Controls().hsScore),
                                      static_cast<Control*>(&Controls().hsdiversity)}) {
            EXPECT_THAT(Tip(*slider), HasSubstr("does not apply"));
        }
    }
};

TEST_F(SearchEverywhere, CommandFillsTheListForTheWordShownOnce) {
    Setting(L"ScoreBox", L"1");
    OpenWith(L"eceive ord");
    EXPECT_THAT(Suggested(), ElementsAre(L"(no suggestions)"));
    EXPECT_THAT(Tip(Controls().hsScore), Not(HasSubstr("does not apply")));
    Click(Controls().cmdEverywhere);
    ExpectFoundEverywhere();
    EXPECT_EQ(Controls().txtChgTo.Text(), L"receive");
    EXPECT_TRUE(Controls().cmdChange.Enabled());
    EXPECT_THAT(ToUtf8(Controls().lstSco.Item(0)), HasSubstr("%"));
    EXPECT_EQ(Controls().lstSco.Count(), Controls().lstSug.Count());
    EXPECT_THAT(ToUtf8(Form().SuggestionTip(0)), HasSubstr("From the whole dictionary"));
    EXPECT_EQ(_wtoi(Controls().lblCnt.Text().c_str()), Controls().lstSug.Count());

    Click(Controls().cmdChange);
    EXPECT_EQ(DocumentText(), L"receive ord");
    EXPECT_THAT(Suggested(), ElementsAre(L"(no suggestions)")) << "the next word, as ever";
    EXPECT_THAT(Tip(Controls().hsScore), Not(HasSubstr("does not apply")));
    Click(Controls().cmdIgnore);
    EXPECT_FALSE(Controls().cmdEverywhere.Enabled()) << "no word is shown";
}

TEST_F(SearchEverywhere, KeyAndMenuDoTheSame) {
    OpenWith(kFirstLetterMissing);
    Press(VK_F8);
    ExpectFoundEverywhere();
    Check(kFirstLetterMissing);
    ASSERT_TRUE(Controls().cmdEverywhere.Enabled());
    fakes_.menus.choose = MainMenus::kEverywhere;
    RightClick(Controls().cmdSuggestions);
    ExpectFoundEverywhere();
    RightClick(Controls().cmdSuggestions);
    EXPECT_FALSE(fakes_.menus.enabled[MainMenus::kEverywhere]);
}

TEST_F(SearchEverywhere, TakesTheCaseOfTheWordButGivesNoneItsFirstCapital) {
    struct Case {
        const wchar_t* text;
        const wchar_t* taken;
    };
    Setting(L"IgnoreUCase", L"0");
    Open();
    for (const Case& row :
         {Case{L"eceive", L"receive"}, Case{L"Eceive", L"Receive"}, Case{L"ECEIVE", L"RECEIVE"}}) {
        Check(row.text);
        Press(VK_F8);
        EXPECT_EQ(Controls().txtChgTo.Text(), row.taken);
        EXPECT_EQ(Controls().lstSug.Selected(), 0);
    }
}

TEST_F(SearchEverywhere, TypedTextStaysAndSlidersLeaveTheListAlone) {
    OpenWith(kFirstLetterMissing);
    Controls().txtChgTo.SetText(L"mine");
    Press(VK_F8);
    EXPECT_EQ(Controls().txtChgTo.Text(), L"mine");
    EXPECT_EQ(Controls().lstSug.Selected(), -1);
    EXPECT_THAT(Suggested(), Contains(L"receive"));
    Controls().hsScore.SetValue(100);
    for (const WPARAM news : {TB_THUMBTRACK, TB_ENDTRACK}) {
        SendMessageW(Controls().pic2.Handle(), WM_HSCROLL, news,
                     reinterpret_cast<LPARAM>(Controls().hsScore.Handle()));
    }
    EXPECT_THAT(Suggested(), Contains(L"receive"));
}

TEST_F(SearchEverywhere, SettingMeansEveryWordAndIsStoredAtOnce) {
    Setting(L"OpenWOptions", L"1");
    OpenWith(L"eceive ord");
    EXPECT_FALSE(Controls().chkEverywhere.Checked());
    SendMessageW(Controls().chkEverywhere.Handle(), BM_CLICK, 0, 0);
    ExpectFoundEverywhere();
    EXPECT_TRUE(Form().Menus().mnuAlwaysEverywhere->Checked());
    EXPECT_EQ(StoredSetting(L"Settings", L"WideSearch"), L"1");
    Click(Controls().cmdIgnore);
    EXPECT_THAT(Suggested(), Contains(L"word"));
    EXPECT_EQ(Controls().txtChgTo.Text(), Suggested().front());

    Reopen();
    EXPECT_TRUE(Controls().chkEverywhere.Checked());
    Check(kFirstLetterMissing);
    ExpectFoundEverywhere();
    fakes_.menus.choose = MainMenus::kAlwaysEverywhere;
    RightClick(Controls().chkEverywhere);
    EXPECT_THAT(Suggested(), ElementsAre(L"(no suggestions)"));
    EXPECT_FALSE(Controls().chkEverywhere.Checked());
    EXPECT_FALSE(Form().Menus().mnuAlwaysEverywhere->Checked());
    EXPECT_EQ(StoredSetting(L"Settings", L"WideSearch"), L"0");
    EXPECT_TRUE(Controls().cmdEverywhere.Enabled());
}

TEST_F(SearchEverywhere, SettingHoldsForOtherProgramsToo) {
    Setting(L"WideSearch", L"1");
    Open({}, Mode::Automation);
    SpellCheckArguments arguments;
    arguments.strToCheck = kFirstLetterMissing;
    arguments.blnShowAutomationAlone = true;
    Form().SpellCheck(arguments);
    Pump();
    ExpectFoundEverywhere();
}

TEST_F(SearchEverywhere, SeesWhatTheWindowAddsAndRemoves) {
    Setting(L"WideSearch", L"1");
    Flag(254, 0);
    OpenWith(L"vxqzwi xqzwi");
    EXPECT_THAT(Suggested(), Not(Contains(L"xqzwi")));
    ChooseIn(Controls().lstNID, 1);
    Click(Controls().cmdAdd[0]);
    EXPECT_THAT(Suggested(), ElementsAre(L"xqzwi")) << "added to the main dictionary just now";
    fakes_.ui.answer = Answer::Yes;
    fakes_.menus.choose = MainMenus::kRemove;
    RightClick(Controls().lstSug);
    Press(VK_F7);
    EXPECT_THAT(Suggested(), Not(Contains(L"xqzwi")));
    ChooseIn(Controls().lstNID, 1);
    Click(Controls().cmdAdd[1]);
    EXPECT_THAT(Suggested(), ElementsAre(L"xqzwi")) << "and now to the custom one";
}

/// So many words that the index takes a while.
class SearchOfManyWords : public SearchEverywhere {
  protected:
    SearchOfManyWords() {
        const Path folder = folder_ / L"data" / "Dictionarys" / "1033";
        for (char a = 'a'; a <= 'z'; ++a) {
            for (char b = 'a'; b <= 'z'; ++b) {
                const std::string beginning = {a, b};
                const Path file = folder / (beginning + "_.dic");
                if (IsFile(file)) continue;
                std::string lines;
                for (char c = 'a'; c <= 'z'; ++c) lines += beginning + c + "qzw,1\r\n";
                WriteBytes(file, lines);
            }
        }
    }
    bool IndexStands() const { return IsFile(folder_ / L"data" / "Cache" / "1033.words"); }
};

TEST_F(SearchOfManyWords, ClosingWhileTheIndexIsMadeStopsIt) {
    OpenWith(kFirstLetterMissing);
    PostMessageW(Form().Handle(), WM_CLOSE, 0, 0);
    Form().cmdEverywhere_Click();
    ASSERT_TRUE(IsOpen()) << "not under the command's feet";
    EXPECT_FALSE(IndexStands());
    EXPECT_TRUE(ClosesItself());
}

TEST_F(SearchOfManyWords, KeyboardIsBackOnceTheIndexIsMade) {
    OpenWith(kFirstLetterMissing);
    Controls().lstNID.SetFocus();
    Press(VK_F8);
    ExpectFoundEverywhere();
    EXPECT_TRUE(IndexStands());
    EXPECT_TRUE(Controls().lstNID.HasFocus());
    EXPECT_FALSE(Form().IsRunning());
    EXPECT_TRUE(IsWindowEnabled(Form().Handle()));
}

}  // namespace
}  // namespace wordhawk::test
