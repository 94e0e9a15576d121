#include "app/command_file.h"
#include "app/version.h"
#include "engine/program.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "platform/win32/system_clipboard.h"
#include "platform/win32/system_library.h"
#include "platform/win32/system_sound.h"
#include "ui/desktop.h"
#include "ui/framework/message_loop.h"
#include "ui/main_window/frmNewSpell.h"
#include "ui/ui_services_win32.h"

#include <objbase.h>
#include <shellapi.h>
#include <shobjidl.h>

#include <string>

namespace wordhawk {
namespace {

/// The command line behind the program's own name, untouched: the quotes in it matter.
std::wstring Arguments() {
    const wchar_t* at = GetCommandLineW();
    bool quoted = false;
    for (; *at != L'\0' && (quoted || (*at != L' ' && *at != L'\t')); ++at) {
        if (*at == L'"') quoted = !quoted;
    }
    while (*at == L' ' || *at == L'\t') ++at;
    return at;
}

/// A data folder other than the user's own: an aid for tests.
Path DataFolderOfTests() {
    wchar_t folder[MAX_PATH];
    const DWORD length = GetEnvironmentVariableW(L"WORDHAWK_DATA", folder, MAX_PATH);
    return length > 0 && length < MAX_PATH ? PathFromText({folder, length}) : Path();
}

int Main() {
    SetCurrentProcessExplicitAppUserModelID(L"Wordhawk.Wordhawk");
    UiServicesWin32 ui;
    SystemClipboard clipboard;
    SystemSound sound;
    SystemFileDialogs files;
    SystemMenuTracker menus;
    Desktop desktop{ui, clipboard, sound, files, menus};

    ProgramOptions options;
    options.data_folder = DataFolderOfTests();
    Program program(options, ui);
    if (program.state.DataFolder.empty()) {
        ui.ShowMessage(modLoadRes::LoadResText(program.state, text_id::kNoDataFolder),
                       FromUtf8(WORDHAWK_TITLE), MessageIcon::Exclamation, MessageButtons::Ok);
        return 1;
    }
    program.state.CommandFile = CommandFileFrom(Arguments());

    // After an update that closed us, the system opens the document again.
    if (!program.state.CommandFile.empty()) {
        RegisterApplicationRestart((L"\"" + program.state.CommandFile + L"\"").c_str(), 0);
    }

    SharedMainWindow shared;
    frmNewSpell window({program, desktop, shared});
    ui.owner = [&window] { return window.Handle(); };
    window.on_unloaded = [] { PostQuitMessage(0); };
    if (!window.Show()) return 1;
    return RunMessageLoop(window);
}

}  // namespace
}  // namespace wordhawk

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    wordhawk::TrustSystemLibrariesOnly();
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const int result = wordhawk::Main();
    CoUninitialize();
    return result;
}
