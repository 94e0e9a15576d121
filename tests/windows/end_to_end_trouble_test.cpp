// What the program says when something that it needs is not to be had.

#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "tests/windows/captions.h"
#include "tests/windows/end_to_end_fixture.h"

namespace wordhawk::test {
namespace {

class Trouble : public EndToEnd {
  protected:
    static constexpr const wchar_t* kProgram = L"Wordhawk";

    /// The text of the message box that is up.
    static std::wstring BoxText() {
        constexpr int kTextOfABox = 0xFFFF;
        const HWND box = FindWindowW(L"#32770", kProgram);
        return box == nullptr ? std::wstring() : test::TextOf(GetDlgItem(box, kTextOfABox));
    }
    static bool BoxSays(int text) {
        const std::wstring wanted = modLoadRes::LoadResText({}, text);
        return WaitUntil([&] { return BoxText().find(wanted) != std::wstring::npos; });
    }
};

TEST_F(Trouble, DictionaryThatCannotBeReadIsNamedAndTheTextStaysAsItIs) {
    Setting(L"SaveBack", L"1");
    const Path dictionary = Data() / "Dictionarys" / "1033" / "ho_.dic";
    ASSERT_TRUE(IsFile(dictionary));
    const Path file = folder_ / L"letter.txt";
    WriteBytes(file, "the house");
    // As another program has it that shares it with nobody.
    const HANDLE lock = CreateFileW(dictionary.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    Launch(L"\"" + TextFromPath(file) + L"\"");
    EXPECT_TRUE(BoxSays(text_id::kCannotReadDictionary)) << ToUtf8(BoxText());
    EXPECT_NE(BoxText().find(L"ho_.dic"), std::wstring::npos) << ToUtf8(BoxText());
    DismissBox(kProgram);
    CloseHandle(lock);
    ASSERT_TRUE(WaitForCount(1)) << "its words count as unknown";
    ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(Window()));
    Key(VK_F7);
    ASSERT_NO_FATAL_FAILURE(DismissCompletion());
    ExpectEnd();
    EXPECT_EQ(ReadBytes(file), "the house");
}

/// Names another folder for application data; only where no other program could stumble over it.
class ApplicationData {
  public:
    explicit ApplicationData(const Path& folder) {
        wchar_t before[MAX_PATH];
        DWORD size = sizeof before;
        RegGetValueW(HKEY_CURRENT_USER, kKey, kName,
                     RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND, nullptr, before, &size);
        before_.assign(before, size / sizeof(wchar_t) - 1);
        Set(TextFromPath(folder));
    }
    ~ApplicationData() { Set(before_); }

  private:
    static constexpr const wchar_t* kKey =
        L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
    static constexpr const wchar_t* kName = L"AppData";

    static void Set(const std::wstring& value) {
        RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kName, REG_EXPAND_SZ, value.c_str(),
                        static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
    }
    std::wstring before_;
};

TEST_F(Trouble, WithoutAFolderForItsDataTheProgramSaysSoAndEnds) {
    if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr)
        GTEST_SKIP() << "other programs of this user need that folder";
    const ApplicationData nowhere(folder_ / L"gone" / L"for good");
    SetEnvironmentVariableW(L"WORDHAWK_DATA", nullptr);
    LaunchProcess({});
    EXPECT_TRUE(BoxSays(text_id::kNoDataFolder)) << ToUtf8(BoxText());
    PostMessageW(FindWindowW(L"#32770", kProgram), WM_COMMAND, IDOK, 0);
    ExpectEnd(1);
    for (const wchar_t* made : {L"gone", L"Dictionarys", L"Resources", L"Sounds"})
        EXPECT_FALSE(std::filesystem::exists(folder_ / made))
            << ToUtf8(made) << " in " << folder_.Folder();
}

}  // namespace
}  // namespace wordhawk::test
