// The real program among files that somebody else prepared.

#include "platform/files.h"
#include "tests/windows/end_to_end_fixture.h"

namespace wordhawk::test {
namespace {

/// A language file or settings file in which every line is of the worst kind.
std::string HostileTexts(const std::vector<std::string>& keys) {
    static const std::vector<std::string> kTexts = {"%s%n%x%08lx%p",
                                                    std::string(60'000, 'x'),
                                                    "a\x01\x08\x1B[31m\x7F\xC2\x9B",
                                                    "\xE2\x80\xAE&&&&&",
                                                    std::string(300, '&'),
                                                    "{0}{1}\\r\\n\\\\?\\",
                                                    "",
                                                    "\"\xF0\x9F\x98\x80\xED\xA0\xBD"};
    std::string bytes = "[Wordhawk]\r\n";
    for (std::size_t i = 0; i < keys.size(); ++i)
        bytes += keys[i] + "=" + kTexts[i % kTexts.size()] + "\r\n";
    return bytes;
}

TEST_F(EndToEnd, HostileLanguageFileChangesNoWordOfTheText) {
    std::vector<std::string> ids;
    for (int id = 101; id < 1200; ++id) ids.push_back(std::to_string(id));
    Setting(L"SaveBack", L"1");
    const Path file = folder_ / L"text.txt";
    // Each turn gives every window another one of the texts.
    for (int turn = 0; turn < 3; ++turn) {
        SCOPED_TRACE(turn);
        ids.insert(ids.begin(), "x");
        WriteBytes(Data() / "Resources" / "1033" / "lang1033.ini", HostileTexts(ids));
        WriteBytes(file, "the housee and %s\r\n");
        ASSERT_NO_FATAL_FAILURE(StartOn(file));
        ASSERT_TRUE(WaitForCount(1));
        ASSERT_TRUE(WaitUntil([&] { return ChangeTo() == L"house"; }));
        EXPECT_EQ(TextOf(main_id::cmdChange).find(L"Change"), std::wstring::npos)
            << "the file is in force";
        Key(VK_RETURN);
        ASSERT_NO_FATAL_FAILURE(DismissBox(nullptr));
        ExpectEnd();
        EXPECT_EQ(ReadBytes(file), "the house and %s\r\n");
    }
}

TEST_F(EndToEnd, HostileSettingsDoNoHarm) {
    const std::string settings =
        ReadBytes(Data() / "Wordhawk.ini") + "SaveBack=1\r\nDSA=" + std::string(60'000, '%') +
        "\r\nDiversity=-2147483649\r\nScoreValue=%n\r\nSortBy=99999999999\r\n"
        "OpenWOptions=-1\r\nPrefTab=32768\r\nConfirmation=\\\\.\\pipe\\x\r\n"
        "CustomDic=..\\..\\x.dic\r\n[Dictionarys]\r\n0=..\\..\\..\\x.dic\r\n1=CON\r\n2=" +
        std::string(5'000, 'y') + "\r\n[Recentchanges]\r\n0=" + std::string(60'000, 'z');
    WriteBytes(Data() / "Wordhawk.ini", settings);
    const Path file = folder_ / L"text.txt";
    const std::string text = "the housee\r\n";
    WriteBytes(file, text);
    ASSERT_NO_FATAL_FAILURE(Launch(L"\"" + TextFromPath(file) + L"\""));
    // What stands before the window are messages about the dictionaries.
    ASSERT_TRUE(WaitUntil([&] {
        if (ListCount() == 1 && IsWindowEnabled(Window())) return true;
        const HWND box = FindWindowW(L"#32770", nullptr);
        if (box != nullptr) PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
        Sleep(100);
        return false;
    }));
    WaitForKeyboard(Window());
    Key(VK_ESCAPE);
    ExpectEnd();
    EXPECT_EQ(ReadBytes(file), text);
    EXPECT_FALSE(IsFile(folder_ / L"x.dic"));
}

}  // namespace
}  // namespace wordhawk::test
