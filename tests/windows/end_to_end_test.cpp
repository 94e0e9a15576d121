// The program itself as a process of its own, driven by the keyboard.

#include "dict/build.h"
#include "platform/folders.h"
#include "platform/modSect.h"
#include "platform/win32/system_clipboard.h"
#include "tests/support/temp_dir.h"
#include "ui/main_window/frmNewSpell.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <functional>
#include <string>
#include <vector>

namespace wordhawk::test {
namespace {

constexpr DWORD kPatience = 30'000;

const std::vector<std::string>& Words() {
    static const std::vector<std::string> words = {
        "house",  "horse",  "water",  "table",  "chair",  "window", "garden", "flower",
        "mother", "father", "sister", "bridge", "river",  "winter", "summer", "spring",
        "autumn", "yellow", "purple", "orange", "silver", "golden", "paper",  "pencil",
        "school", "market", "doctor", "friend", "animal", "island"};
    return words;
}

class EndToEnd : public testing::Test {
  protected:
    EndToEnd() {
        std::string list = "the\nand\n";
        for (const std::string& word : Words()) list += word + "\n";
        WriteBytes(folder_ / L"words.txt", list);
        const Path lists[] = {folder_ / L"words.txt"};
        EXPECT_TRUE(BuildDictionary(lists, Data() / "Dictionarys" / "1033", {}));
        Setting(L"Language", L"1033");
        SetEnvironmentVariableW(L"WORDHAWK_DATA", TextFromPath(Data()).c_str());
    }
    ~EndToEnd() override {
        SetEnvironmentVariableW(L"WORDHAWK_DATA", nullptr);
        if (process_.hProcess == nullptr) return;
        TerminateProcess(process_.hProcess, 99);
        WaitForSingleObject(process_.hProcess, kPatience);
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }

    Path Data() const { return folder_ / L"data"; }
    void Setting(std::wstring_view key, std::wstring_view value) {
        modSect::WriteSetting(L"Settings", key, value, Data() / "Wordhawk.ini");
    }

    /// Starts the program and waits for its window.
    void Start(const std::wstring& arguments) {
        const Path program = ProgramFolder() / "Wordhawk.exe";
        std::wstring line = L"\"" + TextFromPath(program) + L"\" " + arguments;
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        ASSERT_TRUE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                   nullptr, &startup, &process_));
        ASSERT_TRUE(WaitUntil([&] {
            window_ = FindWindowW(frmNewSpell::kClassName, nullptr);
            return window_ != nullptr && IsWindowVisible(window_);
        })) << "no window came up";
        ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(window_));
    }
    /// Until the keys go to a window of the program and have done so for a while: a screen is slow
    /// to settle who has the keyboard.
    void WaitForKeyboard(HWND window) {
        SetForegroundWindow(window);
        int times = 0;
        ASSERT_TRUE(WaitUntil([&] {
            const bool has_it =
                GetForegroundWindow() == window && Focus() != nullptr && IsChild(window, Focus());
            times = has_it ? times + 1 : 0;
            return times == 20;
        })) << "the window did not get the keyboard";
    }
    /// The control of the program that gets the keys.
    HWND Focus() const {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        const DWORD thread = GetWindowThreadProcessId(window_, nullptr);
        return GetGUIThreadInfo(thread, &info) ? info.hwndFocus : nullptr;
    }

    static bool WaitUntil(const std::function<bool()>& done) {
        const ULONGLONG end = GetTickCount64() + kPatience;
        while (!done()) {
            if (GetTickCount64() > end) return false;
            Sleep(10);
        }
        return true;
    }
    HWND Child(int id) const {
        struct Search {
            int id;
            HWND found;
        } search{id, nullptr};
        EnumChildWindows(
            window_,
            [](HWND child, LPARAM data) {
                auto& wanted = *reinterpret_cast<Search*>(data);
                if (GetDlgCtrlID(child) == wanted.id) wanted.found = child;
                return wanted.found == nullptr ? TRUE : FALSE;
            },
            reinterpret_cast<LPARAM>(&search));
        return search.found;
    }
    int ListCount() const {
        return static_cast<int>(SendMessageW(Child(main_id::lstNID), LB_GETCOUNT, 0, 0));
    }
    std::wstring ChangeTo() const {
        wchar_t text[200]{};
        SendMessageW(Child(main_id::txtChgTo), WM_GETTEXT, 200, reinterpret_cast<LPARAM>(text));
        return text;
    }
    bool WaitForCount(int count) const {
        return WaitUntil([&] { return ListCount() == count; });
    }

    static void Key(WORD key, WORD held = 0) {
        std::vector<INPUT> inputs;
        const auto add = [&](WORD code, DWORD flags) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wVk = code;
            input.ki.dwFlags = flags;
            inputs.push_back(input);
        };
        if (held != 0) add(held, 0);
        add(key, 0);
        add(key, KEYEVENTF_KEYUP);
        if (held != 0) add(held, KEYEVENTF_KEYUP);
        SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    }
    static void Type(std::string_view letters) {
        for (const char letter : letters) Key(static_cast<WORD>(letter - 'a' + 'A'));
    }
    /// Gives a file dialog of the program a path, and confirms it with Enter.
    void AnswerFileDialog(const wchar_t* title, const Path& path) {
        constexpr int kFileName = 0x47C;  // a combo box
        HWND dialog = nullptr;
        ASSERT_TRUE(WaitUntil([&] {
            dialog = FindWindowW(L"#32770", title);
            return dialog != nullptr && IsWindowVisible(dialog) &&
                   GetDlgItem(dialog, kFileName) != nullptr;
        })) << "no dialog came up";
        const HWND name = GetDlgItem(dialog, kFileName);
        SendMessageW(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(TextFromPath(path).c_str()));
        ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(dialog));
        ASSERT_TRUE(IsChild(name, Focus()));
        Key(VK_RETURN);
        ASSERT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
        WaitForKeyboard(window_);
    }
    void DismissCompletion() {
        HWND box = nullptr;
        ASSERT_TRUE(WaitUntil(
            [&] { return (box = FindWindowW(L"#32770", L"Spell check complete")) != nullptr; }));
        EXPECT_FALSE(IsWindowEnabled(window_)) << "keys would change the document behind the box";
        ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(box));
        Key(VK_RETURN);
        ASSERT_TRUE(WaitUntil([&] { return !IsWindow(box); }));
    }
    void ExpectEnd() {
        ASSERT_EQ(WaitForSingleObject(process_.hProcess, kPatience), WAIT_OBJECT_0)
            << "the program did not end";
        DWORD code = 1;
        GetExitCodeProcess(process_.hProcess, &code);
        EXPECT_EQ(code, 0u);
    }

    TempDir folder_;
    PROCESS_INFORMATION process_{};
    HWND window_ = nullptr;
};

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
    WaitForKeyboard(window_);
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
