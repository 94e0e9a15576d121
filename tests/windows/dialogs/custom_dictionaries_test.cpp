#include "tests/windows/dialogs/dialog_fixture.h"
#include "ui/dialogs/dialog_ids.h"
#include "ui/dialogs/frmCusDics.h"

#include <gmock/gmock.h>

namespace wordhawk::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CustomDictionaries : public DialogTest {
  protected:
    frmCusDics& Open() {
        form_ = std::make_unique<frmCusDics>(Running(), fakes_.desktop);
        Show(*form_);
        return *form_;
    }
    void Activate(const std::vector<std::wstring>& names) {
        modRegs::SaveCustomDictionaryList(Running().state, names);
        Restart();
    }
    std::vector<std::wstring> Listed() const {
        std::vector<std::wstring> names;
        for (int i = 0; i < form_->lstCusDics.Count(); ++i) {
            names.push_back((form_->lstCusDics.Checked(i) ? L"*" : L"") +
                            form_->lstCusDics.Item(i));
        }
        return names;
    }
    /// Answers the next input boxes with these texts.
    void Type(const std::vector<std::wstring>& texts) {
        for (const std::wstring& text : texts) {
            When(L"WordhawkInputBox", [text](HWND box) {
                SetDlgItemTextW(box, input_id::text, text.c_str());
                Click(box, IDOK);
            });
        }
    }
    /// Clicks New where the first box is answered so; the second, if one comes, is cancelled.
    void NewAs(const std::wstring& text) {
        Type({text});
        Click(form_->cmdNew);
    }
    bool IsOpen() const { return form_->Handle() != nullptr; }

    std::unique_ptr<frmCusDics> form_;
};

TEST_F(CustomDictionaries, ListsTheFilesInUpperCaseWithTheActiveTicked) {
    for (const wchar_t* name : {L"Notes.dic", L"CUSTOM.DIC", L"work.DIC", L"readme.txt"}) {
        WriteBytes(Custom(name), "");
    }
    Setting(L"CustomDic", L"work.dic");
    Activate({L"notes.DIC", L"GONE.DIC"});
    frmCusDics& form = Open();
    EXPECT_THAT(Listed(), ElementsAre(L"CUSTOM.DIC", L"*NOTES.DIC", L"WORK.DIC"));
    EXPECT_EQ(form.lstCusDics.Current(), 2);
    EXPECT_TRUE(form.cmdDelete.Enabled());
    EXPECT_EQ(form.Caption(), L"Custom Dictionarys");
    EXPECT_THAT(Clipped(form.Handle()), IsEmpty());
}

TEST_F(CustomDictionaries, EmptyFolderStandsForTheDefaultDictionary) {
    Setting(L"CustomDic", L"GONE.DIC");
    Restart();
    Open();
    EXPECT_THAT(Listed(), ElementsAre(L"*CUSTOM.DIC"));
    EXPECT_EQ(Running().settings.CustomDic, L"CUSTOM.DIC");
}

TEST_F(CustomDictionaries, NewMakesAnEmptyFileThatAdditionsGoTo) {
    WriteBytes(Custom(L"CUSTOM.DIC"), "hello,72400\r\n");
    Activate({L"CUSTOM.DIC"});
    frmCusDics& form = Open();
    NewAs(L"notes");
    EXPECT_TRUE(AllCame());
    EXPECT_THAT(ListFiles(Running().state.CustomFolder(), L".dic"),
                ElementsAre(L"CUSTOM.DIC", L"notes.DIC"));
    EXPECT_THAT(Listed(), ElementsAre(L"*CUSTOM.DIC", L"*NOTES.DIC"));
    EXPECT_EQ(form.lstCusDics.Current(), 1);
    EXPECT_EQ(Stored(L"CustomDic"), L"notes.DIC");
    Click(form.cmdOK);
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(Running().settings.CustomDictionaries, ElementsAre(L"CUSTOM.DIC", L"NOTES.DIC"));
}

TEST_F(CustomDictionaries, NamesThatCannotBeAreRefusedWithAMessageAndMakeNothing) {
    struct Case {
        const wchar_t* typed;
        bool told;
        const char* reason;
    };
    const Case cases[] = {
        {L"", false, "nothing"},
        {L"   ", false, "blanks"},
        {L"..\\x", true, "a path"},
        {L"a/b", true, "a path"},
        {L"C:x", true, "a drive"},
        {L"CON", true, "a device"},
        {L"com1.dic", true, "a device with an extension"},
        {L"a\x0001"
         L"b",
         true, "a control character"},
        {L"what?", true, "a wildcard"},
        {L"..", true, "the folder above"},
        {L".dic", true, "an extension alone"},
        {L"\x65E5\x672C\x8A9E\x65E5\x672C\x8A9E\x65E5\x672C\x8A9E\x65E5\x672C\x8A9E\x65E5\x672C",
         true, "14 characters that the settings cannot hold"},
        {L"custom", true, "taken, in other case"},
        {L"Custom.Dic", true, "taken, with its extension"},
    };
    WriteBytes(Custom(L"CUSTOM.DIC"), "");
    for (const Case& c : cases) {
        Restart();
        frmCusDics& form = Open();
        fakes_.ui.shown.clear();
        Type({c.typed});
        if (c.told) When(L"WordhawkInputBox", [](HWND box) { Click(box, IDCANCEL); });
        Click(form.cmdNew);
        EXPECT_TRUE(AllCame()) << c.reason;
        EXPECT_EQ(fakes_.ui.shown.size(), c.told ? 1u : 0u) << c.reason;
        EXPECT_THAT(ListFiles(Running().state.CustomFolder(), L".dic"), ElementsAre(L"CUSTOM.DIC"))
            << c.reason;
        EXPECT_EQ(Stored(L"CustomDic"), L"(none)") << c.reason;
    }
    EXPECT_EQ(fakes_.ui.shown[0].text,
              L"Dictionary name is already in use.\n\nTry choosing another name.");
    EXPECT_EQ(fakes_.ui.shown[0].title, L"Duplicate dictionary name");
    EXPECT_EQ(fakes_.ui.shown[0].icon, MessageIcon::Information);
}

TEST_F(CustomDictionaries, FifteenCharactersCannotBeTyped) {
    frmCusDics& form = Open();
    When(L"WordhawkInputBox", [](HWND box) {
        const HWND text = GetDlgItem(box, input_id::text);
        for (int i = 0; i < 15; ++i) SendMessageW(text, WM_CHAR, L'a' + static_cast<WPARAM>(i), 1);
        EXPECT_EQ(GetWindowTextLengthW(text), 14);
        EXPECT_THAT(Clipped(box), IsEmpty());
        Click(box, IDOK);
    });
    Click(form.cmdNew);
    EXPECT_TRUE(IsFile(Custom(L"abcdefghijklmn.DIC")));
}

TEST_F(CustomDictionaries, DeleteAsksAndDeletesTheFile) {
    WriteBytes(Custom(L"A.DIC"), "word,1\r\n");
    WriteBytes(Custom(L"B.DIC"), "");
    frmCusDics& form = Open();
    form.lstCusDics.SetCurrent(0);
    form.lstCusDics_Click();
    fakes_.ui.answer = Answer::No;
    Click(form.cmdDelete);
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_EQ(fakes_.ui.shown[0].text,
              L"Permanently delete custom dictionary named:    A.DIC\nNo copy will remain.");
    EXPECT_EQ(fakes_.ui.shown[0].title, L"Delete custom dictionary?");
    EXPECT_EQ(fakes_.ui.shown[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(fakes_.ui.shown[0].buttons, MessageButtons::YesNoDefaultNo);
    EXPECT_TRUE(IsFile(Custom(L"A.DIC")));
    fakes_.ui.answer = Answer::Yes;
    Click(form.cmdDelete);
    EXPECT_FALSE(IsFile(Custom(L"A.DIC")));
    EXPECT_THAT(Listed(), ElementsAre(L"B.DIC"));

    // The menu of Delete takes the question away for this time.
    fakes_.menus.choose = 0;
    SendMessageW(form.Handle(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(form.cmdDelete.Handle()),
                 MAKELPARAM(10, 10));
    fakes_.ui.shown.clear();
    Click(form.cmdDelete);
    EXPECT_THAT(fakes_.ui.shown, IsEmpty());
    EXPECT_THAT(Listed(), IsEmpty());
    for (const Button* button : {&form.cmdDelete, &form.cmdEdit, &form.cmdRemove}) {
        EXPECT_FALSE(button->Enabled());
    }
}

TEST_F(CustomDictionaries, FileThatCannotBeDeletedStaysOnTheList) {
    WriteBytes(Custom(L"A.DIC"), "");
    SetFileAttributesW(Custom(L"A.DIC").c_str(), FILE_ATTRIBUTE_READONLY);
    frmCusDics& form = Open();
    form.lstCusDics.SetCurrent(0);
    form.lstCusDics_Click();
    Click(form.cmdDelete);
    SetFileAttributesW(Custom(L"A.DIC").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_THAT(Listed(), ElementsAre(L"A.DIC"));
    EXPECT_EQ(form.lblStatus.Text(), L"A.DIC cannot be deleted.");
}

TEST_F(CustomDictionaries, FileThatIsGoneMeanwhileLeavesTheList) {
    WriteBytes(Custom(L"A.DIC"), "");
    frmCusDics& form = Open();
    form.lstCusDics.SetCurrent(0);
    form.lstCusDics_Click();
    std::filesystem::remove(Custom(L"A.DIC"));
    When(L"frmEditDict", [](HWND editor) {
        EXPECT_EQ(SendDlgItemMessageW(editor, editdict_id::lstEdit, LB_GETCOUNT, 0, 0), 0);
        Click(editor, IDOK);
    });
    Click(form.cmdEdit);
    Click(form.cmdDelete);
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(CustomDictionaries, RemoveLeavesTheFile) {
    WriteBytes(Custom(L"A.DIC"), "");
    WriteBytes(Custom(L"B.DIC"), "");
    Activate({L"A.DIC", L"B.DIC"});
    frmCusDics& form = Open();
    form.lstCusDics.SetCurrent(0);
    form.lstCusDics_Click();
    Click(form.cmdRemove);
    EXPECT_THAT(Listed(), ElementsAre(L"*B.DIC"));
    EXPECT_TRUE(IsFile(Custom(L"A.DIC")));
    Click(form.cmdOK);
    EXPECT_THAT(Running().settings.CustomDictionaries, ElementsAre(L"B.DIC"));
}

TEST_F(CustomDictionaries, OkMakesTheTickedActiveAndOldKeysComeBackAtTheNextStart) {
    for (const wchar_t* name : {L"A.DIC", L"B.DIC", L"C.DIC"}) WriteBytes(Custom(name), "");
    Activate({L"A.DIC", L"B.DIC", L"C.DIC"});
    frmCusDics& form = Open();
    form.lstCusDics.SetChecked(0, false);
    Click(form.cmdOK);
    EXPECT_THAT(Running().settings.CustomDictionaries, ElementsAre(L"B.DIC", L"C.DIC"));
    Restart();
    EXPECT_THAT(Running().settings.CustomDictionaries, ElementsAre(L"B.DIC", L"C.DIC", L"C.DIC"));
}

TEST_F(CustomDictionaries, NothingTickedStandsForTheDefaultDictionary) {
    WriteBytes(Custom(L"A.DIC"), "");
    Setting(L"CustomDic", L"A.DIC");
    Activate({L"A.DIC"});
    frmCusDics& form = Open();
    form.lstCusDics.SetChecked(0, false);
    Click(form.cmdOK);
    EXPECT_THAT(Running().settings.CustomDictionaries, ElementsAre(L"CUSTOM.DIC"));
    EXPECT_EQ(Running().settings.CustomDic, L"CUSTOM.DIC");
    EXPECT_EQ(Stored(L"CustomDic"), L"CUSTOM.DIC");
}

TEST_F(CustomDictionaries, ClosedWithoutOkKeepsWhatWasActive) {
    WriteBytes(Custom(L"A.DIC"), "");
    Activate({L"A.DIC"});
    frmCusDics& form = Open();
    form.lstCusDics.SetChecked(0, false);
    Press(VK_ESCAPE);
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(Running().settings.CustomDictionaries, ElementsAre(L"A.DIC"));
}

}  // namespace
}  // namespace wordhawk::test
