#include "tests/automation/automation_fixture.h"

#include "dict/build.h"
#include "platform/folders.h"
#include "platform/modSect.h"
#include "platform/text.h"
#include "platform/win32/handle.h"
#include "ui/main_window/frmNewSpell.h"

#include <tlhelp32.h>

namespace wordhawk::test {
namespace {

constexpr DWORD kPatience = 60'000;

std::wstring Program() { return TextFromPath(ProgramFolder() / "Wordhawk.exe"); }

HANDLE StartProcess(std::wstring line, HANDLE output) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    if (output != nullptr) {
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = startup.hStdError = output;
    }
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process)) {
        return nullptr;
    }
    CloseHandle(process.hThread);
    return process.hProcess;
}

}  // namespace

void AutomationTest::SetUpTestSuite() {
    // For all users: this system looks a class up by its name there alone.
    ASSERT_EQ(RunProgram(L"/RegServer /AllUsers /Quiet"), 0u);
}

void AutomationTest::TearDownTestSuite() { RunProgram(L"/UnregServer /AllUsers /Quiet"); }

AutomationTest::AutomationTest() {
    WriteBytes(folder_ / L"words.txt", "the\nand\nhouse\nwater\nthis\nis\nit\n");
    const Path lists[] = {folder_ / L"words.txt"};
    EXPECT_TRUE(BuildDictionary(lists, Data() / "Dictionarys" / "1033", {}));
    Setting(L"Language", L"1033");
    // A server that the system starts for this process or for one of its children inherits it.
    SetEnvironmentVariableW(L"WORDHAWK_DATA", TextFromPath(Data()).c_str());
}

AutomationTest::~AutomationTest() {
    if (HWND left = FindWindowW(frmNewSpell::kClassName, nullptr))
        PostMessageW(left, WM_CLOSE, 0, 0);
    EXPECT_TRUE(ServersEnd());
    SetEnvironmentVariableW(L"WORDHAWK_DATA", nullptr);
}

DWORD AutomationTest::RunProgram(const std::wstring& arguments) {
    const KernelHandle process(StartProcess(L"\"" + Program() + L"\" " + arguments, nullptr));
    DWORD code = 99;
    if (process && WaitForSingleObject(process.Get(), kPatience) == WAIT_OBJECT_0) {
        GetExitCodeProcess(process.Get(), &code);
    }
    return code;
}

void AutomationTest::Setting(std::wstring_view key, std::wstring_view value) const {
    modSect::WriteSetting(L"Settings", key, value, Data() / "Wordhawk.ini");
}

AutomationTest::Script AutomationTest::Start(const std::wstring& extension, const std::string& text,
                                             const Path& argument) {
    const std::wstring name = std::to_wstring(++scripts_);
    const Path file = folder_ / (name + L"." + extension);
    Script script;
    script.output = folder_ / (name + L".out");
    WriteBytes(file, text);
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const FileHandle output(CreateFileW(script.output.c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                        &inherited, CREATE_ALWAYS, 0, nullptr));
    std::wstring line = L"cscript.exe //nologo \"" + TextFromPath(file) + L"\"";
    if (!argument.empty()) line += L" \"" + TextFromPath(argument) + L"\"";
    script.process = StartProcess(std::move(line), output.Get());
    EXPECT_NE(script.process, nullptr);
    return script;
}

std::string AutomationTest::Finish(Script script) {
    const KernelHandle process(script.process);
    EXPECT_EQ(WaitForSingleObject(process.Get(), kPatience), WAIT_OBJECT_0) << "the script hangs";
    TerminateProcess(process.Get(), 1);
    return ReadBytes(script.output);
}

testing::AssertionResult AutomationTest::WaitForWindow(int count) {
    const bool came = WaitUntil([&] {
        window_ = FindWindowW(frmNewSpell::kClassName, nullptr);
        return window_ != nullptr && IsWindowVisible(window_) && ListCount() == count;
    });
    if (came) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "no window with " << count << " words";
}

testing::AssertionResult AutomationTest::Click(int id, int words_then) {
    const HWND button = Child(id);
    if (!WaitUntil([&] { return IsWindowEnabled(button); })) {
        return testing::AssertionFailure() << "button " << id << " is not enabled";
    }
    // Posted: a command that opens a box returns only when that is closed.
    PostMessageW(GetParent(button), WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(button));
    if (WaitUntil([&] { return !IsWindow(window_) || ListCount() == words_then; })) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "the list has " << ListCount() << " words";
}

testing::AssertionResult AutomationTest::CorrectAll(int count) {
    testing::AssertionResult result = WaitForWindow(count);
    for (int left = count - 1; result && left >= 0; --left) {
        result = Click(main_id::cmdChange, left);
    }
    return result;
}

void AutomationTest::CloseWindow() { PostMessageW(window_, WM_CLOSE, 0, 0); }

testing::AssertionResult AutomationTest::DismissCompletion() {
    HWND box = nullptr;
    const bool came = WaitUntil([&] {
        box = FindWindowW(L"#32770", L"Spell check complete");
        return box != nullptr && IsWindowVisible(box);
    });
    if (!came) return testing::AssertionFailure() << "no box came up";
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    if (WaitUntil([&] { return !IsWindow(box); })) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "the box stays";
}

int AutomationTest::Servers() {
    const FileHandle all(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    int count = 0;
    for (BOOL more = Process32FirstW(all.Get(), &entry); more;
         more = Process32NextW(all.Get(), &entry)) {
        if (EqualIgnoringCase(entry.szExeFile, L"Wordhawk.exe")) ++count;
    }
    return count;
}

testing::AssertionResult AutomationTest::ServersEnd() {
    if (WaitUntil([] { return Servers() == 0; })) return testing::AssertionSuccess();
    return testing::AssertionFailure() << Servers() << " still run";
}

}  // namespace wordhawk::test
