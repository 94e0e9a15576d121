#include "engine/check/check_pass.h"
#include "lang/text_ids.h"
#include "tests/windows/dialogs/dialog_fixture.h"
#include "ui/dialogs/dialog_ids.h"
#include "ui/dialogs/frmPreferences.h"

#include <gmock/gmock.h>

namespace wordhawk::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PreferencesDialog : public DialogTest {
  protected:
    frmPreferences& Open() {
        form_ = std::make_unique<frmPreferences>(Running(), fakes_.desktop);
        Show(*form_);
        return *form_;
    }
    bool IsOpen() const { return form_->Handle() != nullptr; }
    /// Position of the delimiter flag with this number in the list.
    static int RowOf(int flag) { return flag - 1; }
    void Toggle(CheckBox& box) { SendMessageW(box.Handle(), BM_CLICK, 0, 0); }

    std::unique_ptr<frmPreferences> form_;
};

TEST_F(PreferencesDialog, OpensWithTheDefaultsOnTheFirstTab) {
    frmPreferences& form = Open();
    for (int i = 0; i < Preferences::kOptionCount; ++i) {
        const CheckBox& box = form.chkPrefs[static_cast<std::size_t>(i)];
        if (i == Preferences::kNoOption) {
            EXPECT_EQ(box.Handle(), nullptr);
            continue;
        }
        // The seventh shows a flag that is on at first.
        EXPECT_EQ(box.Checked(), i == 7 || i == 8 || i == 10 || i == 11) << i;
    }
    EXPECT_TRUE(form.optST[0].Checked());
    EXPECT_TRUE(form.optTTyp[0].Checked());
    EXPECT_FALSE(form.optTTyp[0].Enabled());
    EXPECT_EQ(form.lblSnd.Text(), L"");
    EXPECT_TRUE(form.lblTab[0].Checked());
    EXPECT_EQ(form.cboLgs.Item(form.cboLgs.Selected()), L"English");
    EXPECT_FALSE(form.lblDis[1].Visible());
    EXPECT_EQ(form.lstDicts.Selected(), 0);
    EXPECT_EQ(form.lblDict.Text(), L"CUSTOM.DIC");
}

TEST_F(PreferencesDialog, CaptionsAreComposedOfTheTexts) {
    frmPreferences& form = Open();
    struct Case {
        const Control& control;
        const wchar_t* caption;
    };
    const Case cases[] = {
        {form.lblTab[0], L"  Spelling   "},
        {form.lblTab[1], L"  Display   "},
        {form.lblTab[2], L"  Delimiters   "},
        {form.lblTab[3], L"  Dictionarys   "},
        {form.chkPrefs[1], L"Set text back to clipboard when finished as"},
        {form.optTTyp[1], L"Rich text"},
        {form.optST[2], L"Words LIKE"},
        {form.cmdOK, L"&OK"},
        {form.cmdCancel, L"&Cancel"},
        {form.cmdCusDicts, L"Dictionaries..."},
        {form.cmdSnd, L"..."},
        {form.lblDis[1], L"Resource File Missing"},
    };
    for (const Case& c : cases) EXPECT_EQ(c.control.Text(), c.caption);
    EXPECT_EQ(form.Caption(), L"Preferences");
}

TEST_F(PreferencesDialog, OkWritesEverythingAndCancelNothingButTheTab) {
    enum class End { Ok, Cancel, Escape, CloseButton };
    for (const End end : {End::Cancel, End::Escape, End::CloseButton, End::Ok}) {
        Restart();
        frmPreferences& form = Open();
        for (CheckBox& box : form.chkPrefs) {
            if (box.Handle() != nullptr && &box != &form.chkPrefs[7]) Toggle(box);
        }
        Click(form.lblTab[1]);
        Click(form.optST[2]);
        switch (end) {
            case End::Ok: Click(form.cmdOK); break;
            case End::Cancel: Click(form.cmdCancel); break;
            case End::Escape: Press(VK_ESCAPE); break;
            case End::CloseButton: SendMessageW(form.Handle(), WM_CLOSE, 0, 0); break;
        }
        Pump();
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(Stored(L"PrefTab"), L"1");
        const bool ok = end == End::Ok;
        struct Case {
            const wchar_t* key;
            const wchar_t* value;
        };
        const Case cases[] = {
            {L"CheckClip", L"1"},     {L"SetClip", L"1"},     {L"SaveBack", L"1"},
            {L"OpenSave", L"1"},      {L"RemainOpen", L"1"},  {L"OpenWOptions", L"1"},
            {L"SuggFromMain", L"1"},  {L"IgnoreWebs", L"0"},  {L"IgnoreUCase", L"0"},
            {L"IgnoreNumbers", L"0"}, {L"ScoreBox", L"1"},    {L"SortBy", L"2"},
            {L"ClipType", L"0"},      {L"Confirmation", L""},
        };
        for (const Case& c : cases) EXPECT_EQ(Stored(c.key), ok ? c.value : L"(none)") << c.key;
        EXPECT_EQ(Running().settings.SortBy, ok ? 2 : 0);
        EXPECT_EQ(Running().settings.ScoreBox, ok);
    }
}

TEST_F(PreferencesDialog, ModernCheckingIsOneSwitchOverFourAndOffAtFirst) {
    frmPreferences& form = Open();
    const auto ways = [&] {
        std::string checked;
        for (const CheckBox& way : form.chkWays) checked += way.Checked() ? '1' : '0';
        return checked + (form.chkModern.Checked() ? " all" : "");
    };
    EXPECT_EQ(ways(), "0000");
    Click(form.chkModern);
    EXPECT_EQ(ways(), "1111 all");
    Click(form.chkWays[2]);
    EXPECT_EQ(ways(), "1101");
    Click(form.chkWays[2]);
    EXPECT_EQ(ways(), "1111 all");
    Click(form.chkModern);
    EXPECT_EQ(ways(), "0000");
    Click(form.chkWays[1]);
    Click(form.cmdOK);
    EXPECT_EQ(Stored(L"StraightApostrophe"), L"1");
    EXPECT_EQ(Stored(L"WideSearch"), L"0");
    EXPECT_EQ(Running().settings.StraightApostrophe, 1);
    EXPECT_EQ(Running().settings.LettersStay, 0);
}

TEST_F(PreferencesDialog, FormatsCanBeChosenWhileTheClipboardIsSetAndAreStoredAnyhow) {
    frmPreferences& form = Open();
    Toggle(form.chkPrefs[1]);
    EXPECT_TRUE(form.optTTyp[0].Enabled());
    Click(form.optTTyp[1]);
    EXPECT_FALSE(form.optTTyp[0].Checked());
    Toggle(form.chkPrefs[1]);
    EXPECT_FALSE(form.optTTyp[1].Enabled());
    Click(form.cmdOK);
    EXPECT_EQ(Stored(L"ClipType"), L"1");
    EXPECT_TRUE(Running().settings.ClipType);
}

TEST_F(PreferencesDialog, WarningIsStoredAtOnceOneFlagUpAndStaysAsItWas) {
    for (const bool first : {true, false}) {
        frmPreferences& form = Open();
        Toggle(form.chkPrefs[7]);
        EXPECT_EQ(Running().flags.Get(255), 0) << "cleared";
        Toggle(form.chkPrefs[7]);
        Click(form.cmdCancel);
        Restart();
        EXPECT_EQ(Running().flags.Get(255), 1) << first;
        EXPECT_EQ(Running().flags.Get(254), 1);
    }
}

TEST_F(PreferencesDialog, TabsChangeByClickAndByKeyAndAreRemembered) {
    frmPreferences& form = Open();
    const auto shown = [&] {
        int found = -1;
        for (int i = 0; i < Preferences::kTabCount; ++i) {
            const HWND frame = form.fraDum[static_cast<std::size_t>(i)].Handle();
            EXPECT_EQ(IsWindowVisible(frame) != FALSE, IsWindowEnabled(frame) != FALSE);
            if (IsWindowVisible(frame)) found = found < 0 ? i : 99;
        }
        return found;
    };
    EXPECT_EQ(shown(), 0);
    Click(form.lblTab[2]);
    EXPECT_EQ(shown(), 2);
    form.lblTab[2].SetFocus();
    Press(VK_RIGHT);
    EXPECT_EQ(shown(), 3);
    Click(form.cmdCancel);
    EXPECT_EQ(Stored(L"PrefTab"), L"3");
    frmPreferences& again = Open();
    EXPECT_TRUE(again.lblTab[3].Checked());
    EXPECT_TRUE(IsWindowVisible(again.lstDicts.Handle()));
}

TEST_F(PreferencesDialog, DelimitersAreLegibleAndTellTheirCodes) {
    frmPreferences& form = Open();
    ASSERT_EQ(form.lstCr.Count(), 108);
    struct Case {
        int flag;
        const wchar_t* name;
    };
    const Case cases[] = {
        {1, L"Tab"},          {2, L"!"},        {32, L"@"},        {42, L"~"},
        {43, L"Code 127"},    {44, L"\x20AC"},  {45, L"Code 129"}, {74, L"No-break space"},
        {87, L"Soft hyphen"}, {106, L"\x00D7"}, {108, L"\x00F8"}};
    for (const Case& c : cases) EXPECT_EQ(form.lstCr.Item(RowOf(c.flag)), c.name) << c.flag;
    for (int flag = 1; flag <= 108; ++flag) {
        EXPECT_EQ(form.lstCr.Checked(RowOf(flag)), flag < 16 || flag > 25) << flag;
    }
    Click(form.lblTab[2]);
    RECT first{};
    SendMessageW(form.lstCr.Handle(), LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first));
    SendMessageW(form.lstCr.Handle(), WM_MOUSEMOVE, 0, MAKELPARAM(first.left + 3, first.top + 3));
    EXPECT_EQ(form.lstCr.ToolTipText(), L"Tab: code 9, U+0009");
}

TEST_F(PreferencesDialog, DelimitersHoldForTheNextCheck) {
    const auto unknown = [this] {
        Progress progress;
        return CheckText(L"hello-world hello2world", Running().dictionaries,
                         SplitRules::From(Running().state, Running().settings), progress)
            .words;
    };
    EXPECT_THAT(unknown(), IsEmpty()) << "words with numbers are left out";
    frmPreferences& form = Open();
    constexpr int kHyphen = 13;
    constexpr int kTwo = 18;
    form.lstCr.SetChecked(RowOf(kHyphen), false);
    form.lstCr.SetChecked(RowOf(kTwo), true);
    Click(form.cmdOK);
    EXPECT_THAT(unknown(), ElementsAre(L"hello-world"));
    Restart();
    EXPECT_THAT(unknown(), ElementsAre(L"hello-world"));
    frmPreferences& again = Open();
    EXPECT_FALSE(again.lstCr.Checked(RowOf(kHyphen)));
    Click(again.lblTab[2]);
    Click(again.cmdDefaults);
    EXPECT_TRUE(again.lstCr.Checked(RowOf(kHyphen)));
    EXPECT_FALSE(again.lstCr.Checked(RowOf(kTwo)));
}

TEST_F(PreferencesDialog, LanguageTakesEffectAtOnceAndStaysWhenCancelled) {
    MakeLanguage(1031,
                 {{text_id::kPreferences, L"Einstellungen"}, {text_id::kCancel, L"Abbrechen"}});
    Restart();
    frmPreferences& form = Open();
    EXPECT_THAT(form.cboLgs.Texts(), ElementsAre(L"German", L"English"));
    EXPECT_EQ(form.cboLgs.Selected(), 1);
    Choose(form.cboLgs, 0);
    EXPECT_EQ(form.Caption(), L"Einstellungen");
    EXPECT_EQ(form.cmdCancel.Text(), L"&Abbrechen");
    EXPECT_EQ(form.lblTab[0].Text(), L"  Spelling   ") << "a text that the file lacks";
    EXPECT_EQ(form.lblSnd.ToolTipText(), L"Click with the right button for no sound");
    Click(form.cmdCancel);
    EXPECT_EQ(Stored(L"Language"), L"1031");
    EXPECT_EQ(Running().state.LanguageId, L"1031");
    EXPECT_FALSE(form.lblDis[1].Visible());
}

TEST_F(PreferencesDialog, LanguageWhoseFileIsGoneFallsBackAndSaysSo) {
    MakeLanguage(1036, {{text_id::kPreferences,
                         L"Pr\x00E9"
                         L"f\x00E9rences"}});
    Restart();
    frmPreferences& form = Open();
    std::filesystem::remove_all(Data(L"Resources") / "1036");
    const int beeps = fakes_.ui.beeps;
    Choose(form.cboLgs, 1);
    EXPECT_EQ(form.cboLgs.Item(1), L"French");
    EXPECT_TRUE(form.lblDis[1].Visible());
    EXPECT_EQ(fakes_.ui.beeps, beeps + 1);
    EXPECT_EQ(Stored(L"Language"), L"1033");
    EXPECT_EQ(form.Caption(), L"Preferences");
    Choose(form.cboLgs, 0);
    EXPECT_FALSE(form.lblDis[1].Visible());
}

TEST_F(PreferencesDialog, SoundIsPickedOrEmptied) {
    WriteBytes(Data(L"Sounds") / "bell.wav", "RIFF");
    WriteBytes(Data(L"Sounds") / "Chime.WAV", "RIFF");
    const Path other = folder_ / L"other.wav";
    WriteBytes(other, "RIFF");
    frmPreferences& form = Open();
    Click(form.lblTab[1]);
    std::vector<std::wstring> listed;
    When(L"WordhawkSoundPicker", [&](HWND picker) {
        const HWND list = GetDlgItem(picker, sound_id::list);
        EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0), 3);
        SendMessageW(list, LB_SETCURSEL, 2, 0);
        SendMessageW(picker, WM_COMMAND, MAKEWPARAM(sound_id::list, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
        Click(picker, sound_id::play);
        Click(picker, IDOK);
    });
    Click(form.cmdSnd);
    const std::wstring chime = TextFromPath(Data(L"Sounds") / "Chime.WAV");
    EXPECT_EQ(form.lblSnd.Text(), chime);
    EXPECT_THAT(fakes_.sound.played, ElementsAre(chime));

    fakes_.files.choice = FileChoice{other, DocumentKind::Plain};
    When(L"WordhawkSoundPicker", [&](HWND picker) {
        Click(picker, sound_id::browse);
        Click(picker, IDCANCEL);
    });
    Click(form.cmdSnd);
    EXPECT_EQ(form.lblSnd.Text(), chime) << "cancelled";
    EXPECT_EQ(fakes_.files.folder, Data(L"Sounds"));

    When(L"WordhawkSoundPicker", [&](HWND picker) {
        EXPECT_EQ(SendDlgItemMessageW(picker, sound_id::list, LB_GETCOUNT, 0, 0), 4)
            << "a sound from elsewhere is remembered";
        Click(picker, IDOK);
    });
    Click(form.cmdSnd);
    EXPECT_EQ(form.lblSnd.Text(), chime) << "chosen at first";
    SendMessageW(form.lblSnd.Handle(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(3, 3));
    EXPECT_EQ(form.lblSnd.Text(), L"");
    form.lblSnd.SetText(chime);
    Click(form.cmdOK);
    EXPECT_EQ(Stored(L"Confirmation"), chime);
    EXPECT_EQ(Running().settings.Confirmation, chime);
    EXPECT_TRUE(AllCame());
}

TEST_F(PreferencesDialog, DictionaryChosenIsTheOneThatAdditionsGoTo) {
    modRegs::SaveCustomDictionaryList(Running().state,
                                      std::vector<std::wstring>{L"CUSTOM.DIC", L"NOTES.DIC"});
    Restart();
    frmPreferences& form = Open();
    Click(form.lblTab[3]);
    Choose(form.lstDicts, 1);
    EXPECT_EQ(form.lblDict.Text(), L"NOTES.DIC");
    Click(form.cmdOK);
    EXPECT_EQ(Stored(L"CustomDic"), L"NOTES.DIC");
    EXPECT_EQ(Running().settings.CustomDic, L"NOTES.DIC");
    EXPECT_THAT(Running().settings.CustomDictionaries, ElementsAre(L"CUSTOM.DIC", L"NOTES.DIC"));
}

TEST_F(PreferencesDialog, ManagerChangesTheList) {
    WriteBytes(Custom(L"OTHER.DIC"), "");
    frmPreferences& form = Open();
    Click(form.lblTab[3]);
    When(L"frmCusDics", [&](HWND manager) {
        SendDlgItemMessageW(manager, cusdics_id::lstCusDics, LB_SETSEL, TRUE, 0);
        Click(manager, IDOK);
    });
    Click(form.cmdCusDicts);
    EXPECT_TRUE(AllCame());
    EXPECT_EQ(form.lstDicts.Count(), 1);
    EXPECT_EQ(form.lstDicts.Item(0), L"OTHER.DIC");
}

TEST_F(PreferencesDialog, SettingsThatCannotBeWrittenHoldForThisRun) {
    Setting(L"PrefTab", L"0");
    frmPreferences& form = Open();
    SetFileAttributesW(Data(L"Wordhawk.ini").c_str(), FILE_ATTRIBUTE_READONLY);
    Toggle(form.chkPrefs[12]);
    Click(form.cmdOK);
    SetFileAttributesW(Data(L"Wordhawk.ini").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_FALSE(IsOpen());
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_EQ(fakes_.ui.shown[0].icon, MessageIcon::Exclamation);
    EXPECT_TRUE(Running().settings.ScoreBox);
}

TEST_F(PreferencesDialog, NoTextIsClippedOnAnyPage) {
    frmPreferences& form = Open();
    for (const TabButton& tab : form.lblTab) {
        Click(tab);
        EXPECT_THAT(Clipped(form.Handle()), IsEmpty());
    }
}

}  // namespace
}  // namespace wordhawk::test
