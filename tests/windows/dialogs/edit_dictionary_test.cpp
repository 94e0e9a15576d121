#include "tests/windows/dialogs/dialog_fixture.h"
#include "ui/dialogs/dialog_ids.h"
#include "ui/dialogs/frmEditDict.h"

#include <gmock/gmock.h>

namespace wordhawk::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EditDictionary : public DialogTest {
  protected:
    frmEditDict& Open(std::string_view bytes) {
        WriteBytes(Custom(L"CUSTOM.DIC"), bytes);
        form_ = std::make_unique<frmEditDict>(Running(), fakes_.desktop);
        form_->OpenEditCustomDictionary({});
        Show(*form_);
        return *form_;
    }
    std::vector<std::wstring> Words() const {
        std::vector<std::wstring> words;
        for (int i = 0; i < form_->lstEdit.Count(); ++i) words.push_back(form_->lstEdit.Item(i));
        return words;
    }
    void Search(const wchar_t* text) {
        form_->txtSrch.SetText(text);
        Pump();
    }
    std::string Bytes() const { return ReadBytes(Custom(L"CUSTOM.DIC")); }

    std::unique_ptr<frmEditDict> form_;
};

TEST_F(EditDictionary, ShowsTheWordsInTheOrderOfTheFile) {
    frmEditDict& form =
        Open("apple,65140\r\nbare\r\n\r\n,5\r\nzebra,90160\r\n\xE9t\xE9,233300\r\n");
    EXPECT_THAT(Words(), ElementsAre(L"apple", L"bare", L"zebra", L"\x00E9t\x00E9"));
    EXPECT_EQ(form.lblCount.Text(), L"4 - words");
    EXPECT_EQ(form.Caption(), L"Edit Custom Dictionary - CUSTOM.DIC");
    EXPECT_EQ(form.PivitPath(), Custom(L"CUSTOM.DIC"));
    EXPECT_FALSE(form.cmdDelete.Enabled());
    EXPECT_THAT(Clipped(form.Handle()), IsEmpty());
}

TEST_F(EditDictionary, SearchFindsTheFirstWordWithThatBeginning) {
    std::string bytes = "apple,65140\r\n";
    for (int i = 100; i < 200; ++i)
        bytes.append("b").append(std::to_string(i)).append(",66000\r\n");
    frmEditDict& form = Open(bytes + "zebra,90160\r\nzebu,90100\r\n");
    struct Case {
        const wchar_t* typed;
        int row;
        int top;
        const char* reason;
    };
    const Case cases[] = {
        {L"b15", 51, 51, "at the top of the visible part"},
        {L"B15", 51, 51, "whatever the case"},
        {L"q", -1, 0, "none: no current line, the list at its top"},
        {L"a", 0, 0, ""},
        {L"b", 1, 1, "from the top each time"},
        {L"", -1, 0, "nothing typed"},
    };
    for (const Case& c : cases) {
        Search(c.typed);
        EXPECT_EQ(form.lstEdit.Selected(), c.row) << c.reason;
        EXPECT_EQ(form.lstEdit.Top(), c.top) << c.reason;
        EXPECT_EQ(form.cmdDelete.Enabled(), c.row >= 0) << c.reason;
    }
    Search(L"ze");
    EXPECT_EQ(form.lstEdit.Item(form.lstEdit.Selected()), L"zebra");
    // The arrow keys go on from there, with the keyboard still in the box.
    form.txtSrch.SetFocus();
    Press(VK_DOWN);
    EXPECT_EQ(form.lstEdit.Item(form.lstEdit.Selected()), L"zebu");
    EXPECT_TRUE(form.txtSrch.HasFocus());
}

TEST_F(EditDictionary, DeleteAsksRemovesTheWordAndGoesOn) {
    frmEditDict& form = Open("apple,65140\r\nhello,72400\r\nzebra,90160\r\n");
    Running().dictionaries.ReloadCustomDictionaries();
    Choose(form.lstEdit, 0);
    fakes_.ui.answer = Answer::No;
    Click(form.cmdDelete);
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_EQ(fakes_.ui.shown[0].text,
              L"Are you sure you want to remove the word 'apple' from your personal dictionary?");
    EXPECT_EQ(fakes_.ui.shown[0].title, L"Confirmation");
    EXPECT_EQ(fakes_.ui.shown[0].icon, MessageIcon::Question);
    EXPECT_EQ(fakes_.ui.shown[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(Words().size(), 3u);
    fakes_.ui.answer = Answer::Yes;
    Click(form.cmdDelete);
    EXPECT_THAT(Words(), ElementsAre(L"hello", L"zebra"));
    EXPECT_EQ(Bytes(), "hello,72400\r\nzebra,90160\r\n");
    EXPECT_EQ(form.lblCount.Text(), L"2 - words");
    EXPECT_FALSE(Running().dictionaries.IsWordInCustomDictionaries(L"apple"));
    EXPECT_EQ(form.lstEdit.Selected(), 0);
    Click(form.cmdDelete);
    Click(form.cmdDelete);
    EXPECT_THAT(Words(), IsEmpty());
    EXPECT_FALSE(form.cmdDelete.Enabled());
    EXPECT_EQ(form.lblCount.Text(), L"0 - words");
    EXPECT_NE(GetFocus(), form.cmdDelete.Handle());
}

TEST_F(EditDictionary, QuestionIsSwitchedByTheMenuAndTheFlagOfTheWarning) {
    frmEditDict& form = Open("apple,65140\r\nzebra,90160\r\n");
    EXPECT_TRUE(form.mnuFiles(1).Checked());
    fakes_.menus.choose = 0;
    SendMessageW(form.Handle(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(form.cmdDelete.Handle()),
                 MAKELPARAM(10, 10));
    EXPECT_FALSE(form.mnuFiles(1).Checked());
    EXPECT_EQ(Running().flags.Get(254), 0);
    Choose(form.lstEdit, 0);
    Click(form.cmdDelete);
    EXPECT_THAT(fakes_.ui.shown, IsEmpty());
    EXPECT_THAT(Words(), ElementsAre(L"zebra"));
    Restart();
    frmEditDict& again = Open("apple,65140\r\n");
    EXPECT_FALSE(again.mnuFiles(1).Checked()) << "kept in the settings";
}

TEST_F(EditDictionary, WordsThatCannotBeRemovedStay) {
    struct Case {
        const char* bytes;
        bool read_only;
        const wchar_t* status;
    };
    const Case cases[] = {
        {"bare\r\n", false, L"'bare' stays: its line has no key or another one."},
        {"hello,1\r\n", false, L"'hello' stays: its line has no key or another one."},
        {"hello,72400\r\n", true, L"The dictionary cannot be written."},
    };
    for (const Case& c : cases) {
        frmEditDict& form = Open(c.bytes);
        if (c.read_only) {
            SetFileAttributesW(Custom(L"CUSTOM.DIC").c_str(), FILE_ATTRIBUTE_READONLY);
        }
        Choose(form.lstEdit, 0);
        Click(form.cmdDelete);
        SetFileAttributesW(Custom(L"CUSTOM.DIC").c_str(), FILE_ATTRIBUTE_NORMAL);
        EXPECT_EQ(Words().size(), 1u) << c.bytes;
        EXPECT_EQ(form.lblStatus.Text(), c.status) << c.bytes;
        EXPECT_EQ(Bytes(), c.bytes);
    }
}

TEST_F(EditDictionary, FileThatIsGoneOrChangedMeanwhileLosesNothing) {
    frmEditDict& form = Open("apple,65140\r\nzebra,90160\r\n");
    Choose(form.lstEdit, 0);
    WriteBytes(Custom(L"CUSTOM.DIC"), "apple,65140\r\nnew,78000\r\nzebra,90160\r\n");
    Click(form.cmdDelete);
    EXPECT_EQ(Bytes(), "new,78000\r\nzebra,90160\r\n") << "a word that another copy added stays";
    std::filesystem::remove(Custom(L"CUSTOM.DIC"));
    Click(form.cmdDelete);
    EXPECT_FALSE(IsFile(Custom(L"CUSTOM.DIC")));
    EXPECT_EQ(form.lblStatus.Text(), L"The file cannot be found.");
}

TEST_F(EditDictionary, HundredThousandWordsAreAllThere) {
    std::string bytes;
    for (int i = 0; i < 100'000; ++i) {
        bytes.append("word").append(std::to_string(100'000 + i)).append(",87630\r\n");
    }
    frmEditDict& form = Open(bytes);
    EXPECT_EQ(form.lstEdit.Count(), 100'000);
    EXPECT_EQ(form.lblCount.Text(), L"100000 - words");
    Search(L"word199999");
    EXPECT_EQ(form.lstEdit.Selected(), 99'999);
}

}  // namespace
}  // namespace wordhawk::test
