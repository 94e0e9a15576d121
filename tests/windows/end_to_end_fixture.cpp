#include "tests/windows/end_to_end_fixture.h"

#include "dict/build.h"
#include "platform/folders.h"
#include "platform/modSect.h"

namespace wordhawk::test {
namespace {

constexpr DWORD kPatience = 30'000;

INPUT KeyInput(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    return input;
}

/// The visible top window of a class that a process owns.
HWND WindowOf(DWORD process, const wchar_t* class_name) {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, class_name, nullptr)) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == process && IsWindowVisible(window)) return window;
    }
    return nullptr;
}

}  // namespace

EndToEnd::EndToEnd() {
    std::string list = "the\nand\n";
    for (const std::string& word : Words()) list += word + "\n";
    WriteBytes(folder_ / L"words.txt", list);
    const Path lists[] = {folder_ / L"words.txt"};
    EXPECT_TRUE(BuildDictionary(lists, Data() / "Dictionarys" / "1033", {}));
    Setting(L"Language", L"1033");
    SetEnvironmentVariableW(L"WORDHAWK_DATA", TextFromPath(Data()).c_str());
}

EndToEnd::~EndToEnd() {
    SetEnvironmentVariableW(L"WORDHAWK_DATA", nullptr);
    for (const Running& program : programs_) {
        if (program.process.hProcess == nullptr) continue;
        TerminateProcess(program.process.hProcess, 99);
        WaitForSingleObject(program.process.hProcess, kPatience);
        CloseHandle(program.process.hThread);
        CloseHandle(program.process.hProcess);
    }
}

const std::vector<std::string>& EndToEnd::Words() {
    static const std::vector<std::string> words = {
        "house",  "horse",  "water",  "table",  "chair",  "window", "garden", "flower",
        "mother", "father", "sister", "bridge", "river",  "winter", "summer", "spring",
        "autumn", "yellow", "purple", "orange", "silver", "golden", "paper",  "pencil",
        "school", "market", "doctor", "friend", "animal", "island"};
    return words;
}

void EndToEnd::Setting(std::wstring_view key, std::wstring_view value) {
    modSect::WriteSetting(L"Settings", key, value, Data() / "Wordhawk.ini");
}

void EndToEnd::LaunchProcess(const std::wstring& arguments) {
    Running& program = programs_[current_];
    std::wstring line = L"\"" + TextFromPath(ProgramFolder() / "Wordhawk.exe") + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    ASSERT_TRUE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               folder_.Folder().c_str(), &startup, &program.process));
}

void EndToEnd::Launch(const std::wstring& arguments) {
    ASSERT_NO_FATAL_FAILURE(LaunchProcess(arguments));
    Running& program = programs_[current_];
    ASSERT_TRUE(WaitUntil([&] {
        program.window = WindowOf(program.process.dwProcessId, frmNewSpell::kClassName);
        return program.window != nullptr;
    })) << "no window came up";
}

void EndToEnd::Start(const std::wstring& arguments) {
    ASSERT_NO_FATAL_FAILURE(Launch(arguments));
    WaitForKeyboard(Window());
}

void EndToEnd::StartOn(const Path& file) { Start(L"\"" + TextFromPath(file) + L"\""); }

void EndToEnd::WaitForKeyboard(HWND window) {
    constexpr int kOften = 20;
    constexpr int kAskAgain = 100;
    int times = 0;
    int tries = 0;
    ASSERT_TRUE(WaitUntil([&] {
        // Late news of another window that came or went may take the keyboard away once more.
        if (GetForegroundWindow() != window && tries++ % kAskAgain == 0)
            SetForegroundWindow(window);
        const bool has_it =
            GetForegroundWindow() == window && Focus() != nullptr && IsChild(window, Focus());
        times = has_it ? times + 1 : 0;
        return times == kOften;
    })) << "the window did not get the keyboard: in front is "
        << GetForegroundWindow() << ", wanted " << window << ", focus " << Focus();
}

HWND EndToEnd::Focus() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    const DWORD thread = GetWindowThreadProcessId(Window(), nullptr);
    return GetGUIThreadInfo(thread, &info) ? info.hwndFocus : nullptr;
}

bool EndToEnd::WaitForCount(int count) const {
    return WaitUntil([&] { return ListCount() == count; });
}

std::wstring EndToEnd::TextOf(int id) const {
    wchar_t text[500]{};
    SendMessageW(Child(id), WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    return text;
}

void EndToEnd::Key(WORD key, WORD held) {
    std::vector<INPUT> inputs;
    if (held != 0) inputs.push_back(KeyInput(held, 0));
    inputs.push_back(KeyInput(key, 0));
    inputs.push_back(KeyInput(key, KEYEVENTF_KEYUP));
    if (held != 0) inputs.push_back(KeyInput(held, KEYEVENTF_KEYUP));
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void EndToEnd::Repeat(WORD key, int times) const {
    constexpr LPARAM kWasDown = LPARAM{1} << 30;
    for (int i = 0; i < times; ++i) {
        PostMessageW(Focus(), WM_KEYDOWN, key, kWasDown | 1);
        Sleep(10);
    }
}

void EndToEnd::Type(std::string_view letters) {
    for (const char letter : letters) Key(static_cast<WORD>(letter - 'a' + 'A'));
}

void EndToEnd::AnswerFileDialog(const wchar_t* title, const Path& path) {
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
    WaitForKeyboard(Window());
}

void EndToEnd::WaitForBox(const wchar_t* title, HWND& box) {
    // A box still in the making that is asked to come to the front never does. Once it shows, keys
    // must not reach the document behind it.
    ASSERT_TRUE(WaitUntil([&] {
        box = FindWindowW(L"#32770", title);
        return box != nullptr && IsWindowVisible(box) && !IsWindowEnabled(Window());
    })) << "no box came up";
    WaitForKeyboard(box);
}

void EndToEnd::DismissBox(const wchar_t* title, WORD key) {
    HWND box = nullptr;
    ASSERT_NO_FATAL_FAILURE(WaitForBox(title, box));
    Key(key);
    ASSERT_TRUE(WaitUntil([&] { return !IsWindow(box); }));
}

void EndToEnd::ExpectEnd(DWORD expected_code) {
    const HANDLE process = programs_[current_].process.hProcess;
    ASSERT_EQ(WaitForSingleObject(process, kPatience), WAIT_OBJECT_0) << "the program did not end";
    DWORD code = 1;
    GetExitCodeProcess(process, &code);
    EXPECT_EQ(code, expected_code);
}

}  // namespace wordhawk::test
