#include "app/command_file.h"
#include "app/program_folders.h"
#include "app/start_mode.h"
#include "app/version.h"
#include "automation/registration.h"
#include "automation/server.h"
#include "engine/install.h"
#include "engine/program.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "platform/folders.h"
#include "platform/win32/system_clipboard.h"
#include "platform/win32/system_library.h"
#include "platform/win32/system_sound.h"
#include "ui/automation_host.h"
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

/// Makes the program known to others, or unknown again. The exit code is the system's error.
int Register(const StartRequest& request) {
    TypeLibrary library;
    LSTATUS status = ERROR_SUCCESS;
    if (const HRESULT loaded = TypeLibrary::Load(ProgramFile(), library); FAILED(loaded)) {
        status = HRESULT_CODE(loaded);
    } else {
        status = request.mode == StartMode::Register ? RegisterServer(library, request.whom)
                                                     : UnregisterServer(library, request.whom);
    }
    if (status != ERROR_SUCCESS && !request.quiet) {
        // Whoever installs for others has no folders here to read a language from.
        const int text = request.mode == StartMode::Register ? text_id::kCannotRegister
                                                             : text_id::kCannotUnregister;
        const std::wstring reason =
            status == ERROR_ACCESS_DENIED
                ? L"\r\n\r\n" + modLoadRes::LoadResText({}, text_id::kNeedsAdministrator)
                : L" (" + std::to_wstring(status) + L")";
        UiServicesWin32().ShowMessage(modLoadRes::LoadResText({}, text) + reason,
                                      FromUtf8(WORDHAWK_TITLE), MessageIcon::Exclamation,
                                      MessageButtons::Ok);
    }
    return static_cast<int>(status);
}

/// Serves other programs until they are gone.
int Serve(Program& program, Desktop& desktop, UiServicesWin32& ui) {
    // A file named without a folder must not be looked for where the system happened to start us.
    SetCurrentDirectoryW((program.state.DataFolder / "Saves").c_str());
    TypeLibrary library;
    if (FAILED(TypeLibrary::Load(ProgramFile(), library))) return 1;
    AutomationHost host(program, desktop, ui);
    return RunServer(library, host);
}

int Main() {
    const StartRequest request = StartRequestFrom(Arguments());
    if (request.mode == StartMode::Register || request.mode == StartMode::Unregister) {
        return Register(request);
    }
    SetCurrentProcessExplicitAppUserModelID(L"Wordhawk.Wordhawk");
    UiServicesWin32 ui;
    SystemClipboard clipboard;
    SystemSound sound;
    SystemFileDialogs files;
    SystemMenuTracker menus;
    Desktop desktop{ui, clipboard, sound, files, menus};

    ProgramOptions options;
    options.data_folder = DataFolderOfTests();
    options.program_mode = request.mode == StartMode::Program;
    Program program(options, ui);
    if (program.state.DataFolder.empty()) {
        ui.ShowMessage(modLoadRes::LoadResText(program.state, text_id::kNoDataFolder),
                       FromUtf8(WORDHAWK_TITLE), MessageIcon::Exclamation, MessageButtons::Ok);
        return 1;
    }
    InstallShippedSounds(program.state, ShippedFolder(ProgramFolder(), "sounds"));
    if (request.mode == StartMode::Automation) return Serve(program, desktop, ui);
    // The dialogs change the current folder later.
    program.state.CommandFile = AbsoluteName(CommandFileFrom(Arguments()));

    // After an update that closed us, the system opens the document again.
    if (!program.state.CommandFile.empty()) {
        RegisterApplicationRestart((L"\"" + program.state.CommandFile + L"\"").c_str(), 0);
    }

    SharedMainWindow shared;
    frmNewSpell window(
        {program, desktop, shared, PlacementStore::Of(program.state, ProgramFolder())});
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
