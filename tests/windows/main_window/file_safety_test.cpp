// Nothing of a file is lost by being opened, looked at or written over.
#include "tests/fuzz/rounds.h"
#include "tests/support/random_text.h"
#include "tests/windows/main_window/main_window_fixture.h"
#include "ui/main_window/recovery_copy.h"

#include <gmock/gmock.h>

#include <richedit.h>

#include <filesystem>
#include <tuple>

namespace wordhawk::test {
namespace {

using testing::HasSubstr;

constexpr std::string_view kWithPicture =
    R"({\rtf1\ansi{\fonttbl{\f0 Arial;}}\f0 teh {\pict\pngblip 89504e47} dog\par})";

class FileSafety : public MainWindowTest {
  protected:
    FileSafety() { Setting(L"SaveBack", L"1"); }

    Path File(std::wstring_view name, std::string_view bytes) {
        const Path path = folder_ / name;
        WriteBytes(path, bytes);
        return path;
    }
    Path Saves(std::string_view name) const { return folder_ / L"data" / "Saves" / name; }
    void OpenAndChange(const Path& file) {
        Open(file);
        fakes_.ui.shown.clear();
        Controls().document.Select({0, 3});
        Controls().rtbW.ReplaceSelection(L"the");
    }
    /// Closes the window, the questions being answered so; how many there were.
    std::size_t Close(Answer answer) {
        fakes_.ui.answer = answer;
        fakes_.ui.shown.clear();
        Form().Unload();
        return fakes_.ui.shown.size();
    }
    void SecondPasses() { SendMessageW(Form().Handle(), WM_TIMER, 2, 0); }
    /// The window goes without closing, as when its process ends.
    void Crash() {
        SecondPasses();
        Reopen();
    }
};

TEST_F(FileSafety, FileThatWasOnlyLookedAtIsNotWritten) {
    const std::pair<const wchar_t*, std::string> files[] = {
        {L"picture.rtf", std::string(kWithPicture)},
        {L"mixed.txt", "the\r\ndog\nand\rcat"},
        {L"half.txt", std::string("\xFF\xFEt\0h\0e", 7)},
    };
    for (const auto& [name, bytes] : files) {
        const Path file = File(name, bytes);
        Open(file);
        EXPECT_EQ(Close(Answer::Yes), 0u);
        EXPECT_EQ(ReadBytes(file), bytes);
    }
    const Path file = File(L"note.txt", "teh dog");
    Open(file);
    WriteBytes(file, "what another program wrote");
    EXPECT_EQ(Close(Answer::Yes), 0u);
    EXPECT_EQ(ReadBytes(file), "what another program wrote");
}

TEST_F(FileSafety, PartsLeftOutAreToldAndAskedAbout) {
    const Path file = File(L"picture.rtf", kWithPicture);
    Open(file);
    EXPECT_THAT(ToUtf8(Controls().lblStatus.Text()), HasSubstr("picture.rtf"));
    EXPECT_THAT(ToUtf8(Controls().lblStatus.Text()), HasSubstr("left out"));

    OpenAndChange(file);
    EXPECT_EQ(Close(Answer::No), 1u);
    EXPECT_TRUE(IsOpen()) << "to be saved elsewhere";
    EXPECT_TRUE(Controls().cmdSaveAs.Visible());
    EXPECT_EQ(ReadBytes(file), kWithPicture);
    fakes_.files.choice = FileChoice{file, DocumentKind::Rich};
    fakes_.ui.shown.clear();
    Click(Controls().cmdSaveAs);
    EXPECT_EQ(fakes_.ui.shown.size(), 1u) << "Save As asks as well";
    EXPECT_EQ(ReadBytes(file), kWithPicture);
    EXPECT_EQ(Close(Answer::No), 0u) << "the answer is known";
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(ReadBytes(Saves("Unsaved text.rtf")), HasSubstr("the"));

    OpenAndChange(file);
    EXPECT_EQ(Close(Answer::Yes), 1u);
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(ReadBytes(file), HasSubstr("the"));
    OpenAndChange(file);
    EXPECT_EQ(Close(Answer::No), 0u) << "nothing of what was written is left out";
}

TEST_F(FileSafety, FileChangedMeanwhileIsAskedAbout) {
    const Path file = File(L"note.txt", "teh dog");
    OpenAndChange(file);
    WriteBytes(file, "theirs");
    EXPECT_EQ(Close(Answer::No), 1u);
    EXPECT_EQ(Close(Answer::No), 0u);
    EXPECT_EQ(ReadBytes(file), "theirs");
    EXPECT_EQ(ReadBytes(Saves("Unsaved text.txt")), "the dog");

    OpenAndChange(file);
    WriteBytes(file, "theirs again");
    EXPECT_EQ(Close(Answer::Yes), 1u);
    EXPECT_EQ(ReadBytes(file), "theirs");

    OpenAndChange(file);
    DeleteFileW(file.c_str());
    EXPECT_EQ(Close(Answer::No), 0u);
    EXPECT_EQ(ReadBytes(file), "theirs") << "a file that is gone loses nothing";
}

TEST_F(FileSafety, NobodyIsAskedAtTheEndOfTheSession) {
    const Path file = File(L"note.txt", "teh dog");
    OpenAndChange(file);
    WriteBytes(file, "theirs");
    SendMessageW(Form().Handle(), WM_ENDSESSION, TRUE, 0);
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(fakes_.ui.shown.empty());
    EXPECT_EQ(ReadBytes(file), "theirs");
    EXPECT_EQ(ReadBytes(Saves("Unsaved text.txt")), "the dog");
}

TEST_F(FileSafety, MixedLineEndsStayWhereTheTextWasNotEdited) {
    const Path file = File(L"mixed.txt", "teh\ndog\r\nand\rcat\n\r\n");
    OpenAndChange(file);
    EXPECT_EQ(Close(Answer::Yes), 0u);
    EXPECT_EQ(ReadBytes(file), "the\ndog\r\nand\rcat\n\r\n");
}

TEST_F(FileSafety, RelativeNameIsThatOfTheFolderAtTheStart) {
    const Path before = std::filesystem::current_path();
    const Path file = File(L"note.txt", "teh dog");
    std::filesystem::current_path(folder_.Folder());
    OpenAndChange("note.txt");
    std::filesystem::current_path(before);
    Close(Answer::Yes);
    EXPECT_EQ(ReadBytes(file), "the dog");
}

constexpr COLORREF kAutomatic = 0xFFFFFFFF;

/// Bold, italic, colour and size of each character.
using Look = std::tuple<bool, bool, COLORREF, LONG>;
std::vector<Look> LooksOf(DocumentPane& document) {
    std::vector<Look> looks;
    for (std::size_t i = 0; i < document.Text().size(); ++i) {
        document.Select({i, 1});
        CHARFORMAT2W format{};
        format.cbSize = sizeof format;
        SendMessageW(document.rtbW.Handle(), EM_GETCHARFORMAT, SCF_SELECTION,
                     reinterpret_cast<LPARAM>(&format));
        const bool automatic = (format.dwEffects & CFE_AUTOCOLOR) != 0;
        looks.emplace_back((format.dwEffects & CFE_BOLD) != 0, (format.dwEffects & CFE_ITALIC) != 0,
                           automatic ? kAutomatic : format.crTextColor, format.yHeight);
    }
    return looks;
}

TEST_F(FileSafety, RunsOfARichTextComeBackAsTheyWere) {
    const Look plain{false, false, kAutomatic, 240};
    struct Case {
        const char* rtf;
        std::vector<std::pair<std::size_t, Look>> runs;
    };
    const Case cases[] = {
        {"{\\rtf1 plain {\\b bold} recieve}",
         {{6, plain}, {4, {true, false, kAutomatic, 240}}, {8, plain}}},
        {"{\\rtf1\\ansi{\\colortbl;\\red255\\green0\\blue0;}\\b a\\b0\\i b\\i0\\cf1 c\\cf0\\fs40 d"
         "\\par\\plain e}",
         {{1, {true, false, kAutomatic, 240}},
          {1, {false, true, kAutomatic, 240}},
          {1, {false, false, RGB(255, 0, 0), 240}},
          {2, {false, false, kAutomatic, 400}},
          {1, plain}}},
        {"{\\rtf1\\fs20{\\b all bold}}", {{8, {true, false, kAutomatic, 200}}}},
    };
    Setting(L"OpenSave", L"1");
    for (const Case& row : cases) {
        SCOPED_TRACE(row.rtf);
        std::vector<Look> expected;
        for (const auto& [count, look] : row.runs) expected.insert(expected.end(), count, look);
        const Path file = File(L"runs.rtf", row.rtf);
        Open(file);
        EXPECT_EQ(LooksOf(Controls().document), expected);
        fakes_.files.choice = FileChoice{file, DocumentKind::Rich};
        for (int round = 0; round < 2; ++round) {
            Click(Controls().cmdSaveAs);
            Click(Controls().cmdOpen);
            EXPECT_EQ(LooksOf(Controls().document), expected) << "round " << round;
        }
    }
}

TEST_F(FileSafety, RichTextOfAnyKindLeavesTheWindowAlive) {
    Open();
    DocumentPane& document = Controls().document;
    document.LoadRichText("{\\rtf1\\ansi recieve " + std::string(400, '{') + "wrld" +
                          std::string(400, '}') + "}");
    EXPECT_EQ(DocumentText(), L"recieve wrld");
    const std::string list =
        "{\\rtf1\\pard\\par\\pard{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt{\\pntxtb\\'b7}}a\\par "
        "b\\par}";
    document.LoadRichText(list);
    fakes_.clipboard.rich = list;
    document.Paste();
    EXPECT_NE(DocumentText().find(L"\u00B7\ta\rb"), std::wstring::npos);
    const std::vector<std::string> pieces = {"{",
                                             "}",
                                             "\\",
                                             "{{{{{{{{",
                                             "\\par ",
                                             "\\u-4?",
                                             "\\u0?",
                                             "\\'00",
                                             "\\bin4294967297 x",
                                             "{\\object\\objemb{\\*\\objdata 01}}",
                                             "{\\pict\\wmetafile8 01}",
                                             "\\trowd\\cellx1 a\\cell\\row ",
                                             "\\fs2147483647 ",
                                             "\\li-2147483648 ",
                                             "\\tx999999999 ",
                                             "{\\*\\pn\\pndec\\pnstart-1}",
                                             "{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt y}}",
                                             "\\f7\\cf9 ",
                                             "\\v ",
                                             "\\pard\\qc ",
                                             "{\\colortbl;\\red999;}",
                                             "{\\fonttbl{\\f7\\fcharset128 ;}}",
                                             "\\uc99 ",
                                             "\\sl-99999 ",
                                             "\\up32767 "};
    Random random(11);
    for (std::uint32_t round = 0; round < test::Rounds() / 16; ++round) {
        std::string rtf =
            "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red1\\green2\\blue3;}\\f0 one {\\b "
            "two}\\par three\\cf1  four\\par}";
        for (std::size_t changes = 1 + random.Below(8); changes > 0; --changes) {
            rtf.insert(random.Below(rtf.size() + 1), random.Pick(pieces));
        }
        document.LoadRichText(rtf);
        fakes_.clipboard.rich = rtf;
        document.Paste();
        ASSERT_FALSE(document.RichText().empty()) << rtf;
    }
}

TEST_F(FileSafety, WhatTheUserHasIsKeptBeforeRichTextComesIn) {
    OpenWith(L"teh dog");
    Click(Controls().cmdChange);
    fakes_.clipboard.rich = "{\\rtf1 x}";
    Controls().document.Paste();
    EXPECT_EQ(ReadBytes(Saves("Recovery copy 1.txt")), "tea dog");
}

TEST_F(FileSafety, TextOfAProgramThatWasEndedIsOffered) {
    OpenWith(L"teh dog");
    SecondPasses();
    EXPECT_FALSE(IsFile(Saves("Recovery copy 1.txt"))) << "nothing was changed";
    Click(Controls().cmdChange);
    fakes_.ui.shown.clear();
    Crash();
    ASSERT_GE(fakes_.ui.shown.size(), 1u);
    EXPECT_THAT(ToUtf8(fakes_.ui.shown[0].text), HasSubstr("tea dog"));
    EXPECT_EQ(DocumentText(), L"tea dog");
    EXPECT_TRUE(Controls().document.HasUnsavedText());
    fakes_.ui.answer = Answer::No;
    Crash();
    EXPECT_EQ(DocumentText(), L"");
    EXPECT_EQ(ReadBytes(Saves("Unsaved text.txt")), "tea dog");
    EXPECT_FALSE(IsFile(Saves("Recovery copy 1.txt")));
    fakes_.ui.shown.clear();
    Crash();
    EXPECT_TRUE(fakes_.ui.shown.empty()) << "offered once";
}

TEST_F(FileSafety, RecoveryCopyGoesWhenTheTextIsSafe) {
    OpenWith(L"teh dog");
    Click(Controls().cmdChange);
    SecondPasses();
    EXPECT_TRUE(IsFile(Saves("Recovery copy 1.txt")));
    fakes_.files.choice = FileChoice{folder_ / L"out.txt", DocumentKind::Plain};
    Form().cmdSaveAs_Click();
    SecondPasses();
    EXPECT_FALSE(IsFile(Saves("Recovery copy 1.txt")));
    Setting(L"KeepUnsaved", L"0");
    OpenWith(L"teh dog");
    Click(Controls().cmdChange);
    SecondPasses();
    EXPECT_FALSE(IsFile(Saves("Recovery copy 1.txt"))) << "switched off";
}

TEST(RecoveryCopyTest, EachWindowHasItsOwn) {
    const TempDir folder;
    std::optional<RecoveryCopy> one(folder.Folder());
    RecoveryCopy two(folder.Folder());
    EXPECT_TRUE(one->Write("one", DocumentKind::Plain));
    EXPECT_TRUE(two.Write("two", DocumentKind::Rich));
    EXPECT_EQ(ReadBytes(folder / L"Recovery copy 1.txt"), "one");
    EXPECT_EQ(ReadBytes(folder / L"Recovery copy 2.rtf"), "two");
    RecoveryCopy three(folder.Folder());
    EXPECT_EQ(three.TakeLeft(), std::nullopt) << "both windows are there";
    one.reset();
    EXPECT_TRUE(RecoveryCopy(folder.Folder()).Write("four", DocumentKind::Plain));
    EXPECT_EQ(ReadBytes(folder / L"Recovery copy 1.txt"), "one") << "left copies are kept";
    EXPECT_EQ(three.TakeLeft(), folder / L"Recovery copy 1.txt");
    EXPECT_EQ(three.KeepForGood().value(), L"Unsaved text.txt");
    EXPECT_EQ(two.KeepForGood().value(), L"Unsaved text.rtf");
    for (int i = 2; i <= 10; ++i) {
        EXPECT_TRUE(two.Write(std::to_string(i), DocumentKind::Plain));
        const std::wstring kept = two.KeepForGood().value();
        if (i < 10) {
            EXPECT_EQ(kept, L"Unsaved text " + std::to_wstring(i) + L".txt");
        }
    }
    EXPECT_EQ(ListFiles(folder.Folder(), L".txt").size(), 10u) << "nine, and the fourth window's";
}

}  // namespace
}  // namespace wordhawk::test
