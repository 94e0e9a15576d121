#include "platform/modSect.h"
#include "tests/windows/main_window/main_window_fixture.h"
#include "ui/main_window/main_geometry.h"

#include <gmock/gmock.h>

#include <commctrl.h>

#include <map>
#include <set>

namespace wordhawk::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MainWindow : public MainWindowTest {
  protected:
    RECT Bounds() {
        RECT bounds{};
        GetWindowRect(Form().Handle(), &bounds);
        return bounds;
    }
    int WidthOf() { return static_cast<int>(Bounds().right - Bounds().left); }
    int HeightOf() { return static_cast<int>(Bounds().bottom - Bounds().top); }
    void Resize(int width, int height) {
        SetWindowPos(Form().Handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
        Pump();
    }
    std::vector<Control*> ControlsIn(HWND panel) {
        std::vector<Control*> found;
        for (FormControl* control : Controls().All()) {
            auto* window = dynamic_cast<Control*>(control);
            if (window != nullptr && GetParent(window->Handle()) == panel && window->Visible()) {
                found.push_back(window);
            }
        }
        return found;
    }
};

TEST_F(MainWindow, CaptionsAreComposedOfTheTextsAtLoad) {
    Open();
    NewSpellControls& c = Controls();
    struct Case {
        Control& control;
        const wchar_t* caption;
    };
    const Case cases[] = {
        {c.lblDum[0], L"Not in Dictionary"},
        {c.lblDum[1], L"Search/Change &to"},
        {c.lblDum[2], L"Score %"},
        {c.lblCD, L"Custom Dictionarys"},
        {c.lblNIL, L"0 - Not Found"},
        {c.lblCnt, L"0 - Sugg&estions"},
        {c.cmdPreferences, L"&Preferences"},
        {c.cmdChange, L"&Change"},
        {c.cmdChangeAll, L"Change A&ll"},
        {c.cmdIgnore, L"&Ignore"},
        {c.cmdIgnoreAll, L"I&gnore All"},
        {c.cmdSuggestions, L"&Suggestions"},
        {c.cmdOpen, L"Open"},
        {c.cmdSaveAs, L"Save As"},
        {c.cmdOptions, L"&Options"},
        {c.cmdAdd[0], L"&Add"},
        {c.cmdAdd[1], L"C&ust."},
        {c.cmdAddAll[0], L"Add All"},
        {c.cmdCancel, L"Cancel"},
        {c.cmdCopyData, L"Copy &Data"},
        {c.cmdSpellcheck, L"Spell Chec&k"},
    };
    for (const Case& row : cases) EXPECT_EQ(row.control.Text(), row.caption);
    EXPECT_EQ(Form().Menus().mnuFile[MainMenus::kSelectAll]->Caption(), L"Select &All");
    EXPECT_EQ(c.cmdSpellcheck.ToolTipText(), L"Check the document (F7)");
}

TEST_F(MainWindow, CaptionsAndAccessKeysFollowTheLanguageFile) {
    struct Case {
        const wchar_t* locale;
        const wchar_t* change;
        const wchar_t* options;
        const wchar_t* change_caption;
        const wchar_t* options_caption;
    };
    const Case cases[] = {
        {L"1031", L"Ersetzen", L"&Optionen", L"&Ersetzen", L"&Optionen"},
        {L"1036", L"Re&mplacer", L"R&&D", L"Re&mplacer", L"&R&&D"},
    };
    for (const Case& row : cases) {
        const std::wstring locale = row.locale;
        const Path file = folder_ / L"data" / "Resources" / PathFromText(locale) /
                          PathFromText(L"lang" + locale + L".ini");
        MakeFolder(file.parent_path());
        modSect::WriteSetting(L"Wordhawk", L"121", row.change, file);
        modSect::WriteSetting(L"Wordhawk", L"180", row.options, file);
        Setting(L"Language", row.locale);
        Open();
        EXPECT_EQ(Controls().cmdChange.Text(), row.change_caption);
        EXPECT_EQ(Controls().cmdOptions.Text(), row.options_caption);
    }
}

TEST_F(MainWindow, AutomationHidesCheckingAndPreferencesAndLeavesTheWindowToBeFound) {
    Setting(L"OpenSave", L"1");
    Open({}, Mode::Automation);
    for (Button* button : {&Controls().cmdSpellcheck, &Controls().cmdPreferences}) {
        EXPECT_FALSE(button->Visible());
        EXPECT_FALSE(button->Enabled());
    }
    EXPECT_FALSE(Controls().cmdOpen.Visible()) << "a setting for the program only";
    EXPECT_EQ(shared_.instance, &Form());
    RightClick(Controls().rtbW);
    EXPECT_THAT(fakes_.menus.shown, IsEmpty());
    Form().Unload();
    EXPECT_EQ(shared_.instance, nullptr);
}

TEST_F(MainWindow, SettingsShowAndHideWhatHangsOnThem) {
    Open();
    EXPECT_FALSE(Controls().lstSco.Visible());
    EXPECT_FALSE(Controls().lblDum[2].Visible());
    EXPECT_FALSE(Controls().cmdOpen.Visible());
    EXPECT_FALSE(Controls().cmdSaveAs.Enabled());
    Setting(L"ScoreBox", L"1");
    Setting(L"OpenSave", L"1");
    Form().LoadSettings();
    EXPECT_TRUE(Controls().lstSco.Visible());
    EXPECT_TRUE(Controls().cmdOpen.Visible());
    EXPECT_TRUE(Controls().cmdSaveAs.Enabled());
    EXPECT_GT(Controls().lstSco.Bounds().right, Controls().lstSco.Bounds().left);
}

TEST_F(MainWindow, CannotBeMadeSmallerThanItsLimit) {
    Open();
    Resize(50, 50);
    EXPECT_EQ(WidthOf(), MulDiv(336, Form().Dpi(), 96));
    EXPECT_EQ(HeightOf(), MulDiv(500, Form().Dpi(), 96));
    const int list = static_cast<int>(Controls().lstSug.Bounds().right);
    Click(Controls().cmdOptions);
    Resize(50, 50);
    EXPECT_EQ(Controls().lstSug.Bounds().right, list) << "the options take no room from the lists";
    Click(Controls().cmdOptions);
    EXPECT_EQ(WidthOf(), MulDiv(336, Form().Dpi(), 96));
}

TEST_F(MainWindow, NothingOverlapsOrIsCutAtAnySize) {
    Setting(L"ScoreBox", L"1");
    Setting(L"OpenSave", L"1");
    Setting(L"OpenWOptions", L"1");
    OpenWith(L"teh dog");
    Click(Controls().cmdAdd[1]);  // shows the line with its button
    for (const SIZE size : {SIZE{530, 500}, SIZE{700, 620}, SIZE{1400, 900}}) {
        Resize(size.cx, size.cy);
        for (const HWND panel : {Controls().pic1.Handle(), Controls().pic2.Handle()}) {
            RECT area{};
            GetClientRect(panel, &area);
            const std::vector<Control*> controls = ControlsIn(panel);
            for (const Control* one : controls) {
                RECT inside{};
                const RECT bounds = one->Bounds();
                IntersectRect(&inside, &bounds, &area);
                EXPECT_TRUE(EqualRect(&inside, &bounds)) << one->Id() << " is cut";
                EXPECT_FALSE(IsRectEmpty(&bounds)) << one->Id() << " is empty";
                for (const Control* other : controls) {
                    const RECT other_bounds = other->Bounds();
                    EXPECT_FALSE(one < other && IntersectRect(&inside, &bounds, &other_bounds))
                        << one->Id() << " overlaps " << other->Id();
                }
            }
        }
    }
}

TEST_F(MainWindow, OptionsWidenAndNarrowTheWindow) {
    Open();
    const int narrow = WidthOf();
    Click(Controls().cmdOptions);
    EXPECT_TRUE(IsWindowVisible(Controls().pic2.Handle()));
    EXPECT_GT(WidthOf(), narrow);
    Click(Controls().cmdOptions);
    EXPECT_FALSE(IsWindowVisible(Controls().pic2.Handle()));
    EXPECT_EQ(WidthOf(), narrow);
}

TEST_F(MainWindow, PlacementComesBackWithAndWithoutTheOptions) {
    Open();
    SetWindowPos(Form().Handle(), nullptr, 40, 30, 600, 550, SWP_NOZORDER);
    Click(Controls().cmdOptions);
    const int with_options = WidthOf();
    Form().Unload();
    Reopen();
    EXPECT_EQ(Bounds().left, 40);
    EXPECT_EQ(Bounds().top, 30);
    EXPECT_EQ(WidthOf(), 600);
    EXPECT_EQ(HeightOf(), 550);
    Form().Unload();
    Setting(L"OpenWOptions", L"1");
    Reopen();
    EXPECT_EQ(WidthOf(), with_options);
}

TEST_F(MainWindow, EveryControlCanBeReachedByTabAndHasAName) {
    Setting(L"ScoreBox", L"1");
    Setting(L"OpenSave", L"1");
    Setting(L"OpenWOptions", L"1");
    OpenWith(L"teh dog");
    std::set<HWND> reached;
    HWND at = Controls().rtbW.Handle();
    for (int i = 0; i < 60 && reached.insert(at).second; ++i) {
        at = GetNextDlgTabItem(Form().Handle(), at, FALSE);
    }
    for (FormControl* control : Controls().All()) {
        auto* window = dynamic_cast<Control*>(control);
        if (window == nullptr || window->TypeName() == L"Label") continue;
        if (window->Visible() && window->Enabled()) {
            EXPECT_TRUE(reached.contains(window->Handle())) << window->Id();
        }
        if (window->TypeName() == L"CommandButton" || window->TypeName() == L"CheckBox") {
            EXPECT_NE(window->Text(), L"") << window->Id();
            continue;
        }
        // A screen reader names other controls by the text just before them.
        wchar_t name[32]{};
        const HWND before = GetWindow(window->Handle(), GW_HWNDPREV);
        GetClassNameW(before, name, 32);
        EXPECT_TRUE(EqualIgnoringCase(name, L"STATIC")) << window->Id();
        EXPECT_GT(GetWindowTextLengthW(before), 0) << window->Id();
    }
}

TEST_F(MainWindow, AccessKeysDoNotClash) {
    Setting(L"OpenSave", L"1");
    Open();
    std::map<wchar_t, std::wstring> taken;
    for (FormControl* control : Controls().All()) {
        const std::wstring caption = control->Caption();
        const std::size_t mark = caption.find(L'&');
        if (mark == std::wstring::npos) continue;
        const auto [other, is_new] = taken.emplace(UpperChar(caption[mark + 1]), caption);
        EXPECT_TRUE(is_new) << ToUtf8(caption) << " and " << ToUtf8(other->second);
    }
}

TEST_F(MainWindow, KeysAloneCorrectADocument) {
    Open();
    Controls().document.LoadPlainText({L"a recieve dgo"});
    Press(VK_F7);
    EXPECT_EQ(Controls().txtChgTo.Text(), L"receive");
    Press('T', With::Alt);
    EXPECT_TRUE(Controls().txtChgTo.HasFocus());
    Press(VK_RETURN);
    EXPECT_EQ(DocumentText(), L"a receive dgo");
    Press('E', With::Alt);
    EXPECT_TRUE(Controls().lstSug.HasFocus());
    Press('T', With::Alt);
    Controls().txtChgTo.SetText(L"dog");
    Press(VK_RETURN);
    EXPECT_EQ(DocumentText(), L"a receive dog");
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_NE(GetFocus(), nullptr);
}

TEST_F(MainWindow, AccessKeyOfACommandLeavesTheKeyboardWhereItWas) {
    OpenWith(L"dgo recieve");
    ASSERT_TRUE(Controls().txtChgTo.HasFocus());
    constexpr LPARAM kAltHeld = LPARAM{1} << 29;
    PostMessageW(GetFocus(), WM_SYSCHAR, 'i', kAltHeld | 1);
    Pump();
    EXPECT_EQ(Controls().lblNID.Text(), L"recieve");
    EXPECT_TRUE(Controls().txtChgTo.HasFocus());
    Press(VK_RETURN);
    EXPECT_EQ(DocumentText(), L"dgo receive");
}

TEST_F(MainWindow, LettersWrittenWithAltGrAreNoCommands) {
    Setting(L"OpenSave", L"1");
    Open();
    Press('O', With::AltGr);
    Press('S', With::AltGr);
    EXPECT_THAT(fakes_.files.titles, IsEmpty());
    Press('O', With::Control);
    EXPECT_THAT(fakes_.files.titles, ElementsAre(L"Open"));
}

TEST_F(MainWindow, FocusIsNeverLostAfterACommand) {
    OpenWith(L"recieve xqzwv");
    Controls().cmdChange.SetFocus();
    Click(Controls().cmdChange);
    EXPECT_FALSE(Controls().cmdChange.Enabled()) << "no suggestions for the second word";
    EXPECT_TRUE(Controls().txtChgTo.HasFocus());
    Controls().cmdIgnoreAll.SetFocus();
    Click(Controls().cmdIgnoreAll);
    const HWND focus = GetFocus();
    EXPECT_TRUE(focus != nullptr && IsWindowEnabled(focus) && IsChild(Form().Handle(), focus));
}

TEST_F(MainWindow, TabLeavesTheDocumentAndEnterStaysInIt) {
    Open();
    Controls().rtbW.SetFocus();
    Press(VK_RETURN);
    EXPECT_EQ(DocumentText(), L"\r");
    EXPECT_TRUE(Controls().rtbW.HasFocus());
    Press(VK_TAB);
    EXPECT_FALSE(Controls().rtbW.HasFocus());
    EXPECT_EQ(DocumentText(), L"\r");
}

TEST_F(MainWindow, EscapeClosesEvenFromTheDocument) {
    Open();
    Controls().rtbW.SetFocus();
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsOpen());
}

TEST_F(MainWindow, ClosingKeepsTheListOfCustomDictionaries) {
    const Path ini = folder_ / L"data" / "Wordhawk.ini";
    modSect::WriteSetting(L"Dictionarys", L"0", L"B.DIC", ini);
    modSect::WriteSetting(L"Dictionarys", L"1", L"A.DIC", ini);
    Setting(L"CustomDic", L"A.DIC");
    Open();
    EXPECT_THAT(Controls().cboDicts.Texts(), ElementsAre(L"B.DIC", L"A.DIC"));
    EXPECT_EQ(Controls().cboDicts.Selected(), 1);
    Controls().cboDicts.Select(0);
    Form().cboDicts_Click();
    EXPECT_EQ(StoredSetting(L"Settings", L"CustomDic"), L"B.DIC");
    Form().Unload();
    EXPECT_EQ(StoredSetting(L"Dictionarys", L"0"), L"B.DIC");
    EXPECT_EQ(StoredSetting(L"Dictionarys", L"1"), L"A.DIC");
}

TEST_F(MainWindow, StatusLineSaysWhatTheCheckFound) {
    Open();
    struct Case {
        const wchar_t* text;
        const wchar_t* status;
    };
    for (const Case& row :
         {Case{L"the dog", L"No unknown words."}, Case{L"teh dog", L"1 unknown word."},
          Case{L"teh dgo", L"2 unknown words."}}) {
        Check(row.text);
        EXPECT_EQ(Controls().lblStatus.Text(), row.status);
    }
}

TEST_F(MainWindow, MissingDictionaryIsSaid) {
    Open();
    for (const std::wstring& name : ListFiles(program_->state.LanguageDictFolder, L".dic")) {
        EXPECT_TRUE(DeleteOneFile(program_->state.LanguageDictFolder / PathFromText(name)));
    }
    Check(L"the dog");
    EXPECT_EQ(Controls().lblStatus.Text(), L"There is no dictionary for this language.");
}

}  // namespace
}  // namespace wordhawk::test
