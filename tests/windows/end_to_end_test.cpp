// The program itself as a process of its own, driven by the keyboard.

#include "platform/folders.h"
#include "platform/win32/system_clipboard.h"
#include "tests/windows/end_to_end_fixture.h"

namespace wordhawk::test {
namespace {

TEST_F(EndToEnd, TextWithThirtyMistakesIsCorrectedByKeyboardAlone) {
    Setting(L"SaveBack", L"1");
    std::string wrong;
    std::string right;
    for (std::size_t i = 0; i < Words().size(); ++i) {
        const std::string& word = Words()[i];
        const bool line_ends = i % 6 == 5;
        wrong += "the " + word + word.back() + (line_ends ? "\n" : " ");
        // Every tenth is replaced by a word of the user's own.
        right += "the " + (i % 10 == 9 ? std::string("and") : word) + (line_ends ? "\n" : " ");
    }
    const Path file = folder_ / L"thirty mistakes.txt";
    WriteBytes(file, wrong);
    Start(L"\"" + TextFromPath(file) + L"\" /ignored");
    ASSERT_TRUE(WaitForCount(30));
    for (std::size_t i = 0; i < Words().size(); ++i) {
        const std::wstring expected = FromUtf8(Words()[i]);
        ASSERT_TRUE(WaitUntil([&] { return ChangeTo() == expected; })) << Words()[i];
        if (i % 10 == 9) {
            Key('T', VK_MENU);
            Type("and");
            ASSERT_TRUE(WaitUntil([&] { return ChangeTo() == L"and"; }));
        }
        Key(VK_RETURN);
        if (i + 1 == Words().size()) break;
        ASSERT_TRUE(WaitForCount(29 - static_cast<int>(i)));
    }
    DismissCompletion();
    ExpectEnd();
    EXPECT_EQ(ReadBytes(file), right);
}

TEST_F(EndToEnd, IgnoringEverythingWithSaveBackLeavesTheBytesAsTheyWere) {
    Setting(L"SaveBack", L"1");
    const std::string text = "the housee caf\xC3\xA9\r\n\r\nand \xE2\x80\x9Cwaterr\xE2\x80\x9D\r\n";
    const Path file = folder_ / L"caf\u00E9 \u4E2D.txt";
    WriteBytes(file, text);
    Start(L"\"" + TextFromPath(file) + L"\"");
    ASSERT_TRUE(WaitUntil([&] { return ListCount() > 0; }));
    for (int left = ListCount(); left > 0; --left) {
        Key('G', VK_MENU);
        if (left == 1) break;
        ASSERT_TRUE(WaitForCount(left - 1));
    }
    DismissCompletion();
    ExpectEnd();
    EXPECT_EQ(ReadBytes(file), text);
}

TEST_F(EndToEnd, TextIsOpenedCorrectedAndSavedThroughTheSystemsDialogs) {
    Setting(L"OpenSave", L"1");
    Setting(L"RemainOpen", L"1");
    const Path wrong = folder_ / L"wrong.txt";
    const Path right = folder_ / L"right.txt";
    WriteBytes(wrong, "the housee\nand the waterr\n");
    Start(L"");
    Key('O', VK_CONTROL);
    AnswerFileDialog(L"Open", wrong);
    ASSERT_TRUE(WaitForCount(2));
    for (const int left : {1, 0}) {
        Key(VK_RETURN);
        ASSERT_TRUE(WaitForCount(left));
    }
    DismissCompletion();
    WaitForKeyboard(Window());
    Key('S', VK_CONTROL);
    AnswerFileDialog(L"Save As", right);
    ASSERT_TRUE(WaitUntil([&] { return IsFile(right); }));
    EXPECT_EQ(ReadBytes(right), "the house\nand the water\n");
    EXPECT_EQ(ReadBytes(wrong), "the housee\nand the waterr\n");
    Key(VK_ESCAPE);
    ExpectEnd();
}

TEST_F(EndToEnd, TextComesFromTheClipboardAndGoesBackCorrected) {
    Setting(L"CheckClip", L"1");
    Setting(L"SetClip", L"1");
    SystemClipboard clipboard;
    ASSERT_TRUE(clipboard.SetPlainText(L"the housee \u4E2D\r\nand the waterr"));
    Start(L"");
    ASSERT_GT(SendMessageW(Child(main_id::rtbW), WM_GETTEXTLENGTH, 0, 0), 0);
    Key(VK_F7);
    for (const int left : {2, 1}) {
        ASSERT_TRUE(WaitForCount(left)) << left;
        Key('C', VK_MENU);
    }
    DismissCompletion();
    ExpectEnd();
    EXPECT_EQ(clipboard.PlainText(), L"the house \u4E2D\r\nand the water");
}

TEST_F(EndToEnd, F7ChecksATypedTextAndEscapeEnds) {
    Start(L"");
    Type("housee");
    ASSERT_TRUE(
        WaitUntil([&] { return SendMessageW(Child(main_id::rtbW), WM_GETTEXTLENGTH, 0, 0) == 6; }));
    Key(VK_F7);
    ASSERT_TRUE(WaitForCount(1));
    EXPECT_TRUE(WaitUntil([&] { return ChangeTo() == L"house"; }));
    Key(VK_ESCAPE);
    ExpectEnd();
}

TEST_F(EndToEnd, ManifestAsksForWhatTheWindowsNeedAndLeavesTheCodePageAlone) {
    const HMODULE module = LoadLibraryExW((ProgramFolder() / "Wordhawk.exe").c_str(), nullptr,
                                          LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(module, nullptr);
    const HRSRC resource = FindResourceW(module, CREATEPROCESS_MANIFEST_RESOURCE_ID, RT_MANIFEST);
    ASSERT_NE(resource, nullptr);
    const std::string manifest(
        static_cast<const char*>(LockResource(LoadResource(module, resource))),
        SizeofResource(module, resource));
    for (const char* wanted :
         {"Microsoft.Windows.Common-Controls", "PerMonitorV2", "longPathAware", "asInvoker"}) {
        EXPECT_NE(manifest.find(wanted), std::string::npos) << wanted;
    }
    EXPECT_EQ(manifest.find("activeCodePage"), std::string::npos);
    EXPECT_NE(FindResourceW(module, MAKEINTRESOURCEW(103), RT_GROUP_CURSOR), nullptr);
    EXPECT_NE(FindResourceW(module, MAKEINTRESOURCEW(1), RT_GROUP_ICON), nullptr);
    wchar_t text[100]{};
    EXPECT_GT(LoadStringW(module, 121, text, 100), 0);
    EXPECT_STREQ(text, L"Change");
    FreeLibrary(module);
}

}  // namespace
}  // namespace wordhawk::test
