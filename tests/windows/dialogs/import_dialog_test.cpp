#include "tests/windows/dialogs/dialog_fixture.h"
#include "ui/dialogs/dialog_ids.h"
#include "ui/dialogs/frmCusDics.h"
#include "ui/dialogs/frmValify.h"

#include <gmock/gmock.h>

namespace wordhawk::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ImportDialog : public DialogTest {
  protected:
    frmCusDics& Open() {
        form_ = std::make_unique<frmCusDics>(Running(), fakes_.desktop);
        Show(*form_);
        return *form_;
    }
    /// Chooses this file in the dialog that Add opens, and closes the options as they are.
    void Import(const Path& source) {
        fakes_.files.choice = FileChoice{source, DocumentKind::Plain};
        When(L"frmValify", [](HWND options) { Click(options, IDOK); });
        Click(form_->cmdAdd);
    }
    Path Source(std::wstring_view name, std::string_view bytes) {
        const Path file = folder_ / name;
        WriteBytes(file, bytes);
        return file;
    }

    std::unique_ptr<frmCusDics> form_;
};

TEST_F(ImportDialog, MakesADictionaryOfTheNewWordsAndTellsTheirNumber) {
    frmCusDics& form = Open();
    Import(Source(L"new.dic", "gizmo,1\r\nhello\r\nwidget\r\nx\r\n"));
    EXPECT_TRUE(AllCame());
    EXPECT_EQ(ReadBytes(Custom(L"new.dic")), "gizmo,71250\r\nwidget,87323\r\n");
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_EQ(fakes_.ui.shown[0].text, L"2 new unique word(s) has been added.");
    EXPECT_EQ(fakes_.files.titles, std::vector<std::wstring>{L"Open"});
    EXPECT_EQ(fakes_.files.filters.substr(0, 31),
              std::wstring(L"Dictionary Files (*.DIC)\0*.DIC\0", 31));
    EXPECT_EQ(fakes_.files.folder, Running().state.CustomFolder());
    const int row = form.lstCusDics.FindExact(L"NEW.DIC");
    ASSERT_GE(row, 0);
    EXPECT_TRUE(form.lstCusDics.Checked(row));
    EXPECT_TRUE(form.cmdNew.Enabled());
    EXPECT_FALSE(IsWindowVisible(form.panel.fraASC.Handle()));
}

TEST_F(ImportDialog, RefusesWhatItMust) {
    WriteBytes(Custom(L"there.dic"), "kept,75130\r\n");
    frmCusDics& form = Open();
    struct Case {
        Path source;
        const wchar_t* text;
        const wchar_t* title;
    };
    const Case cases[] = {
        {Data(L"Dictionarys") / "1033" / "he_.dic",
         L"Cannot copy files from main dictionary folder...", L"Wordhawk"},
        {Custom(L"there.dic"), L"Cannot copy files from custom dictionary folder...", L"Wordhawk"},
        {Source(L"There.DIC", "word"),
         L"Cannot copy over dictionary.\n\nThe dictionary you are trying to add, already exist "
         L"within your custom dictionary folder.\n\nRemove your existing dictionary first.",
         L"Dictionary already exist"},
    };
    for (const Case& c : cases) {
        fakes_.ui.shown.clear();
        fakes_.files.choice = FileChoice{c.source, DocumentKind::Plain};
        Click(form.cmdAdd);
        ASSERT_EQ(fakes_.ui.shown.size(), 1u);
        EXPECT_EQ(fakes_.ui.shown[0].text, c.text);
        EXPECT_EQ(fakes_.ui.shown[0].title, c.title);
        EXPECT_EQ(fakes_.ui.shown[0].icon, MessageIcon::Exclamation);
    }
    EXPECT_EQ(ReadBytes(Custom(L"there.dic")), "kept,75130\r\n");
    fakes_.ui.shown.clear();
    fakes_.files.choice.reset();
    Click(form.cmdAdd);
    EXPECT_THAT(fakes_.ui.shown, IsEmpty()) << "cancelled";
}

TEST_F(ImportDialog, TellsWhenNothingIsNewOrNothingIsThere) {
    Open();
    Import(Source(L"known.dic", "hello\r\nworld\r\n"));
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_EQ(
        fakes_.ui.shown[0].text,
        L"This dictionary contains no new unique words.\n\nAll of the words in this dictionary "
        L"file were already found within your dictionaries.");
    EXPECT_EQ(fakes_.ui.shown[0].title, L"Dictionary's");
    EXPECT_EQ(fakes_.ui.shown[0].icon, MessageIcon::Information);
    EXPECT_FALSE(IsFile(Custom(L"known.dic")));

    fakes_.ui.shown.clear();
    Import(Source(L"empty.dic", ""));
    ASSERT_EQ(fakes_.ui.shown.size(), 2u);
    EXPECT_EQ(fakes_.ui.shown[0].title, L"Dictionary Is Empty");
}

TEST_F(ImportDialog, OptionsAreShownUnlessTheBoxSaysNotTo) {
    frmCusDics& form = Open();
    SendMessageW(form.chkHO.Handle(), BM_CLICK, 0, 0);
    fakes_.files.choice = FileChoice{Source(L"quiet.dic", "gizmo"), DocumentKind::Plain};
    Click(form.cmdAdd);
    EXPECT_TRUE(IsFile(Custom(L"quiet.dic")));
}

TEST_F(ImportDialog, OptionsMoveEachShownFlagOneUpHoweverTheyAreClosed) {
    struct Case {
        int end;
        int toggle;
        const char* flags;
        const char* reason;
    };
    // Flags 249 to 252 afterwards; 249 to 251 are 1, 0, 1 before.
    const Case cases[] = {
        {IDOK, -1, "1101", "untouched"},
        {IDCANCEL, -1, "1101", "closed by Esc"},
        {IDOK, 0, "1001", "the first box becomes the second switch"},
        {IDOK, 2, "1100", "the third box"},
    };
    for (const Case& c : cases) {
        const DelimiterFlagStore::Flag before[] = {{249, 1}, {250, 0}, {251, 1}, {252, 0}};
        Running().flags.Change(before);
        frmValify options(Running().state, Running().flags);
        Show(options);
        EXPECT_EQ(options.Caption(), L"Importing Options");
        EXPECT_EQ(options.cmdOK.Text(), L"&OK");
        EXPECT_TRUE(options.chkVO[0].Checked());
        EXPECT_FALSE(options.chkVO[1].Checked());
        EXPECT_TRUE(options.chkVO[2].Checked());
        EXPECT_THAT(Clipped(options.Handle()), IsEmpty());
        if (c.toggle >= 0) Click(options.chkVO[static_cast<std::size_t>(c.toggle)]);
        SendMessageW(options.Handle(), WM_COMMAND, static_cast<WPARAM>(c.end), 0);
        Restart();
        std::string flags;
        for (int i = 249; i <= 252; ++i) flags += Running().flags.Get(i) ? '1' : '0';
        EXPECT_EQ(flags, c.flags) << c.reason;
    }
}

TEST_F(ImportDialog, CancelKeepsWhatWasImportedSoFar) {
    frmCusDics& form = Open();
    SendMessageW(form.chkHO.Handle(), BM_CLICK, 0, 0);
    std::string lines;
    for (int i = 0; i < 400'000; ++i) {
        lines.append("word").append(std::to_string(1'000'000 + i)).append("\r\n");
    }
    fakes_.files.choice = FileChoice{Source(L"long.dic", lines), DocumentKind::Plain};
    // Comes while the import lets messages through.
    When(L"frmCusDics", [&](HWND) {
        EXPECT_TRUE(form.panel.Running());
        EXPECT_FALSE(form.cmdNew.Enabled());
        EXPECT_FALSE(form.lstCusDics.Enabled());
        EXPECT_TRUE(IsWindowVisible(form.panel.cmdCanImport.Handle()));
        EXPECT_EQ(form.panel.lblSearch.Text(), L"Checking (400000) words...");
        SendMessageW(form.Handle(), WM_CLOSE, 0, 0);
        EXPECT_NE(form.Handle(), nullptr) << "the import ends first";
    });
    Click(form.cmdAdd);
    EXPECT_TRUE(AllCame());
    const std::string written = ReadBytes(Custom(L"long.dic"));
    const auto count = std::count(written.begin(), written.end(), '\n');
    EXPECT_GT(count, 0);
    EXPECT_LT(count, 400'000);
    EXPECT_TRUE(written.starts_with("word1000000,")) << "in order, and whole lines";
    EXPECT_TRUE(written.ends_with("\r\n"));
    EXPECT_EQ(form.lblStatus.Text(),
              L"Cancelled: " + std::to_wstring(count) + L" words were imported.");
    EXPECT_TRUE(form.cmdNew.Enabled());
}

TEST_F(ImportDialog, UnwritableDictionaryIsToldOf) {
    frmCusDics& form = Open();
    std::filesystem::create_directories(Custom(L"folder.dic") / "inside");
    Import(Source(L"folder.dic", "gizmo"));
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_TRUE(fakes_.ui.shown[0].text.starts_with(L"The new dictionary cannot be written."));
    EXPECT_TRUE(form.cmdNew.Enabled());
}

}  // namespace
}  // namespace wordhawk::test
