#include "platform/modSect.h"
#include "tests/windows/main_window/main_window_fixture.h"

#include <gmock/gmock.h>

#include <shellapi.h>
#include <shlobj.h>

namespace wordhawk::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::string_view kRtf =
    R"({\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}\f0\fs24 teh \b lazy\b0  dog\par})";

class Documents : public MainWindowTest {
  protected:
    Path File(std::wstring_view name, std::string_view bytes) {
        const Path path = folder_ / name;
        WriteBytes(path, bytes);
        return path;
    }
    void Drop(const Path& path) {
        const std::wstring name = TextFromPath(path) + std::wstring(2, L'\0');
        const HGLOBAL memory =
            GlobalAlloc(GMEM_MOVEABLE, sizeof(DROPFILES) + name.size() * sizeof(wchar_t));
        auto* drop = static_cast<DROPFILES*>(GlobalLock(memory));
        *drop = {sizeof(DROPFILES), {0, 0}, FALSE, TRUE};
        std::copy(name.begin(), name.end(), reinterpret_cast<wchar_t*>(drop + 1));
        GlobalUnlock(memory);
        SendMessageW(Form().Handle(), WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
        Pump();
    }
};

TEST_F(Documents, CommandFileIsCheckedAtOnceAndSuppressesTheClipboard) {
    Setting(L"CheckClip", L"1");
    fakes_.clipboard.plain = L"something else";
    Open(File(L"note.txt", "teh dog"));
    EXPECT_EQ(DocumentText(), L"teh dog");
    EXPECT_THAT(Listed(), ElementsAre(L"teh"));
    EXPECT_EQ(Form().Caption(), L"note.txt - Wordhawk");
}

TEST_F(Documents, SaveBackKeepsEncodingAndLineEnds) {
    struct Case {
        const char* reason;
        std::string before;
        std::string after;
    };
    const Case cases[] = {
        {"UTF-8, LF", "teh caf\xC3\xA9\nline\n", "the caf\xC3\xA9\nline\n"},
        {"UTF-8 with mark, CR LF", "\xEF\xBB\xBFteh\r\nline", "\xEF\xBB\xBFthe\r\nline"},
        {"ANSI", "teh caf\xE9\r\n", "the caf\xE9\r\n"},
        {"UTF-16", std::string("\xFF\xFEt\0e\0h\0\n\0", 10),
         std::string("\xFF\xFEt\0h\0e\0\n\0", 10)},
        {"begins like rich text", "{\\rtf1 teh", "{\\rtf1 the"},
    };
    Setting(L"SaveBack", L"1");
    for (const Case& row : cases) {
        SCOPED_TRACE(row.reason);
        const Path file = File(L"back.txt", row.before);
        Open(file);
        for (int i = 0; i < Controls().lstNID.Count(); ++i) {
            if (Controls().lstNID.Item(i) == L"teh") ChooseIn(Controls().lstNID, i);
        }
        Controls().txtChgTo.SetText(L"the");
        Click(Controls().cmdChangeAll);
        Form().Unload();
        EXPECT_EQ(ReadBytes(file), row.after);
    }
}

TEST_F(Documents, RichCommandFileIsSavedBackAsRichText) {
    Setting(L"SaveBack", L"1");
    Setting(L"RemainOpen", L"0");
    const Path file = File(L"back.rtf", kRtf);
    Open(file);
    EXPECT_EQ(DocumentText(), L"teh lazy dog");
    Controls().txtChgTo.SetText(L"the");
    Click(Controls().cmdChange);
    EXPECT_TRUE(ClosesItself());
    const std::string saved = ReadBytes(file);
    EXPECT_THAT(saved, HasSubstr("{\\rtf1"));
    EXPECT_THAT(saved, HasSubstr("the"));
    EXPECT_THAT(saved, HasSubstr("\\b"));
    EXPECT_THAT(saved, HasSubstr("lazy"));
}

TEST_F(Documents, WithoutSaveBackTheFileIsLeftAlone) {
    const Path file = File(L"note.txt", "teh dog");
    Open(file);
    Controls().txtChgTo.SetText(L"the");
    Click(Controls().cmdChange);
    Form().Unload();
    EXPECT_EQ(ReadBytes(file), "teh dog");
}

TEST_F(Documents, EmptiedDocumentIsNotSavedBack) {
    Setting(L"SaveBack", L"1");
    const Path file = File(L"note.txt", "teh dog");
    Open(file);
    SendMessageW(Controls().rtbW.Handle(), EM_SETSEL, 0, -1);
    Controls().rtbW.ReplaceSelection(L"");
    Form().Unload();
    EXPECT_EQ(ReadBytes(file), "teh dog");
}

TEST_F(Documents, SaveBackThatFailsIsToldAndKeepsTheWindowOnce) {
    Setting(L"SaveBack", L"1");
    const Path file = File(L"note.txt", "teh dog");
    Open(file);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    Controls().txtChgTo.SetText(L"the");
    Click(Controls().cmdChange);
    fakes_.ui.shown.clear();
    Form().Unload();
    ASSERT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_NE(fakes_.ui.shown[0].text.find(L"note.txt"), std::wstring::npos);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(ReadBytes(file), "teh dog");
    EXPECT_TRUE(Controls().cmdSaveAs.Visible() && Controls().cmdSaveAs.Enabled())
        << "a way out, also without OpenSave";
    Form().Unload();
    EXPECT_FALSE(IsOpen());
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Documents, FileThatCannotBeTakenIsToldAndChangesNothing) {
    struct Case {
        const char* reason;
        Path file;
    };
    const Case cases[] = {
        {"missing", folder_ / L"nowhere.txt"},
        {"another kind", File(L"table.csv", "a,b")},
        {"no rich text in it", File(L"fake.rtf", "just text")},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.reason);
        fakes_.ui.shown.clear();
        Open(row.file);
        ASSERT_EQ(fakes_.ui.shown.size(), 1u);
        EXPECT_NE(fakes_.ui.shown[0].text.find(TextFromPath(row.file.filename())),
                  std::wstring::npos);
        EXPECT_EQ(DocumentText(), L"");
        EXPECT_EQ(Form().Caption(), L"Wordhawk");
    }
}

TEST_F(Documents, ClipboardIsTakenAtLoadRichBeforePlain) {
    struct Case {
        const char* reason;
        std::optional<std::wstring> plain;
        std::optional<std::string> rich;
        const wchar_t* text;
        bool is_rich;
    };
    const Case cases[] = {
        {"both", L"plain", std::string(kRtf), L"teh lazy dog", true},
        {"plain alone", L"plain\r\ntext", {}, L"plain\rtext", false},
        {"neither", {}, {}, L"", false},
    };
    Setting(L"CheckClip", L"1");
    for (const Case& row : cases) {
        SCOPED_TRACE(row.reason);
        fakes_.clipboard.plain = row.plain;
        fakes_.clipboard.rich = row.rich;
        Open();
        EXPECT_EQ(DocumentText(), row.text);
        EXPECT_EQ(Controls().document.IsRich(), row.is_rich);
        EXPECT_THAT(Listed(), IsEmpty());
        EXPECT_EQ(Controls().lblStatus.Text(), L"");
    }
    fakes_.clipboard.plain = L"plain";
    fakes_.clipboard.in_use = true;
    Open();
    EXPECT_EQ(Controls().lblStatus.Text(), L"The clipboard is in use by another program.");
}

TEST_F(Documents, OpenAsksWithBothFiltersLoadsAndChecks) {
    Setting(L"OpenSave", L"1");
    Open();
    fakes_.files.choice = FileChoice{File(L"doc.rtf", kRtf)};
    Click(Controls().cmdOpen);
    EXPECT_THAT(fakes_.files.titles, ElementsAre(L"Open"));
    EXPECT_EQ(fakes_.files.filters,
              std::wstring(L"Text Files (*.txt)\0*.txt\0RTF Files (*.rtf)\0*.rtf\0", 49));
    EXPECT_EQ(DocumentText(), L"teh lazy dog");
    EXPECT_THAT(Listed(), ElementsAre(L"teh"));

    fakes_.files.choice = FileChoice{File(L"doc.txt", "plain dgo")};
    Click(Controls().cmdOpen);
    EXPECT_EQ(DocumentText(), L"plain dgo");
    EXPECT_FALSE(Controls().document.IsRich());
    fakes_.files.choice.reset();
    Click(Controls().cmdOpen);
    EXPECT_EQ(DocumentText(), L"plain dgo");
}

TEST_F(Documents, OpenedFileTakesTheCommandFilesPlaceWithoutBeingWrittenOverIt) {
    Setting(L"OpenSave", L"1");
    Setting(L"SaveBack", L"1");
    const Path named = File(L"named.txt", "teh dog");
    Open(named);
    fakes_.files.choice = FileChoice{File(L"other.txt", "some catt")};
    Click(Controls().cmdOpen);
    Form().Unload();
    EXPECT_EQ(ReadBytes(named), "teh dog");
}

TEST_F(Documents, SaveAsWritesTheChosenKindAndNothingForAnEmptyDocument) {
    Setting(L"OpenSave", L"1");
    OpenWith(L"the dog\rand cat");
    fakes_.files.choice = FileChoice{folder_ / L"out.txt", DocumentKind::Plain};
    Click(Controls().cmdSaveAs);
    EXPECT_EQ(fakes_.files.folder, program_->state.DataFolder / "Saves");
    EXPECT_EQ(ReadBytes(folder_ / L"out.txt"), "the dog\r\nand cat");
    fakes_.files.choice = FileChoice{folder_ / L"out.rtf", DocumentKind::Rich};
    Click(Controls().cmdSaveAs);
    EXPECT_THAT(ReadBytes(folder_ / L"out.rtf"), HasSubstr("{\\rtf1"));

    Controls().document.LoadPlainText({});
    fakes_.files.choice = FileChoice{folder_ / L"none.txt", DocumentKind::Plain};
    Click(Controls().cmdSaveAs);
    EXPECT_FALSE(IsFile(folder_ / L"none.txt"));
}

TEST_F(Documents, RichTextComesBackTheSameAfterSavingAndOpening) {
    Setting(L"OpenSave", L"1");
    Open();
    const Path file = File(L"doc.rtf", kRtf);
    fakes_.files.choice = FileChoice{file, DocumentKind::Rich};
    for (int i = 0; i < 3; ++i) {
        Click(Controls().cmdOpen);
        EXPECT_EQ(DocumentText(), L"teh lazy dog") << "round " << i;
        Click(Controls().cmdSaveAs);
    }
}

TEST_F(Documents, TextThatWouldBeLostIsKeptAndTold) {
    const Path saves = folder_ / L"data" / "Saves";
    const Path kept = saves / "Unsaved text.txt";
    Open(File(L"note.txt", "teh dog"));
    Form().Unload();
    EXPECT_FALSE(IsFile(kept)) << "an unchanged text is still in its file";
    Open(folder_ / L"note.txt");
    Click(Controls().cmdChange);
    Drop(File(L"other.txt", "a dog"));
    EXPECT_EQ(ReadBytes(kept), "tea dog") << "another document takes its place";
    Controls().rtbW.ReplaceSelection(L"caf\u00E9 \u4E2D");
    Form().Unload();
    EXPECT_EQ(ReadBytes(kept), "tea dog") << "one text does not take the other's place";
    EXPECT_EQ(ReadBytes(saves / "Unsaved text 2.txt"),
              "caf\xC3\xA9 \xE4\xB8\xAD"
              "a dog");
    Open();
    EXPECT_NE(Controls().lblStatus.Text().find(L"Saves\\Unsaved text 2.txt"), std::wstring::npos);
    Open();
    EXPECT_EQ(Controls().lblStatus.Text(), L"") << "told once";
}

TEST_F(Documents, SavedTextIsNotKeptBesides) {
    const Path kept = folder_ / L"data" / "Saves" / "Unsaved text.txt";
    Setting(L"SetClip", L"1");
    OpenWith(L"teh dog");
    Click(Controls().cmdChange);
    EXPECT_EQ(fakes_.clipboard.plain, L"tea dog");
    Form().Unload();
    EXPECT_FALSE(IsFile(kept)) << "the clipboard has it";
    OpenWith(L"teh dog");
    Click(Controls().cmdChange);
    Controls().rtbW.ReplaceSelection(L"x");
    fakes_.files.choice = FileChoice{folder_ / L"saved.txt", DocumentKind::Plain};
    Form().cmdSaveAs_Click();
    Form().Unload();
    EXPECT_FALSE(IsFile(kept)) << "a file has it";
    Setting(L"SetClip", L"0");
    OpenWith(L"teh dog");
    Click(Controls().cmdChange);
    Click(Controls().cmdCopyData);
    Form().Unload();
    EXPECT_FALSE(IsFile(kept)) << "the whole text was copied";
    Setting(L"KeepUnsaved", L"0");
    OpenWith(L"teh dog");
    Click(Controls().cmdChange);
    Form().Unload();
    EXPECT_FALSE(IsFile(kept)) << "switched off";
}

TEST_F(Documents, ClosingMidwayHandsTheTextBackToTheClipboard) {
    Setting(L"SetClip", L"1");
    fakes_.clipboard.plain = L"before";
    OpenWith(L"teh dgo");
    Click(Controls().cmdChange);
    ASSERT_FALSE(Listed().empty());
    Form().Unload();
    EXPECT_EQ(fakes_.clipboard.plain, L"tea dgo");
    OpenWith(L"teh");
    Click(Controls().cmdChange);
    fakes_.clipboard.plain = L"copied since";
    Form().Unload();
    EXPECT_EQ(fakes_.clipboard.plain, L"copied since") << "that check was over";
}

TEST_F(Documents, DroppedFileIsLoadedAndChecked) {
    Open();
    Drop(File(L"dropped.txt", "teh dog"));
    EXPECT_EQ(DocumentText(), L"teh dog");
    EXPECT_THAT(Listed(), ElementsAre(L"teh"));
}

TEST_F(Documents, PasteLetsRichTextInButNoPictures) {
    Open();
    fakes_.clipboard.rich =
        R"({\rtf1 one {\pict\pngblip 89504e47} {\object\objemb{\*\objdata 0105}{\result two}}three\par})";
    fakes_.clipboard.plain = L"plain";
    SendMessageW(Controls().rtbW.Handle(), WM_PASTE, 0, 0);
    Pump();
    EXPECT_THAT(DocumentText(), testing::StartsWith(L"one  three"));
    EXPECT_EQ(DocumentText().find(L'\xFFFC'), std::wstring::npos);
}

TEST_F(Documents, MenuOfTheDocumentKnowsWhatCanBeDone) {
    Open();
    EXPECT_FALSE(Controls().document.CanUndo());
    fakes_.menus.choose = -1;
    Controls().rtbW.SetFocus();
    RightClick(Controls().rtbW);
    // Undo, separator, Cut, Copy, Paste, Delete, separator, Select All
    ASSERT_EQ(fakes_.menus.enabled.size(), 8u);
    for (const std::size_t entry : {0u, 2u, 3u, 4u, 5u, 7u})
        EXPECT_FALSE(fakes_.menus.enabled[entry]) << entry;
    fakes_.clipboard.plain = L"pasted";
    fakes_.menus.choose = 4;
    RightClick(Controls().rtbW);
    EXPECT_EQ(DocumentText(), L"pasted");
    fakes_.menus.choose = 7;
    RightClick(Controls().rtbW);
    EXPECT_EQ(Selected(), L"pasted");
    fakes_.menus.choose = 5;
    RightClick(Controls().rtbW);
    EXPECT_EQ(DocumentText(), L"");
    fakes_.menus.choose = 0;
    RightClick(Controls().rtbW);
    EXPECT_EQ(DocumentText(), L"pasted");
}

TEST_F(Documents, NothingIsLostOfATextWithAllKindsOfCharacters) {
    std::wstring text =
        L"a\tb  caf\u00E9 \u4E2D\u6587 \U0001F600 e\u0301 \u200F\u05D0\r\r\x2028 end\r";
    Open();
    Controls().document.LoadPlainText({text});
    EXPECT_EQ(DocumentText(), text);
}

TEST_F(Documents, LargeTextIsReplacedQuicklyByAnother) {
    Open();
    std::wstring text;
    while (text.size() < 200'000) text += L"the quick brown fox and the lazy dog\r";
    Controls().document.LoadPlainText({text});
    Controls().document.LoadPlainText({L"short"});
    EXPECT_EQ(DocumentText(), L"short");
    EXPECT_TRUE(IsWindowVisible(Controls().rtbW.Handle()));
}

}  // namespace
}  // namespace wordhawk::test
