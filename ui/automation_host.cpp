#include "ui/automation_host.h"

#include "platform/folders.h"

#include <stdexcept>

namespace wordhawk {
namespace {

/// Answers every box of this thread with the answer that does nothing. False when there is none.
bool CloseBoxes() {
    bool found = false;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM any) {
            wchar_t name[16]{};
            GetClassNameW(window, name, 16);
            if (!EqualIgnoringCase(name, L"#32770") || !IsWindowVisible(window)) return TRUE;
            PostMessageW(window, WM_COMMAND, IDNO, 0);
            PostMessageW(window, WM_CLOSE, 0, 0);
            *reinterpret_cast<bool*>(any) = true;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

}  // namespace

AutomationHost::AutomationHost(Program& program, Desktop& desktop, UiServicesWin32& ui)
    : program_(program), desktop_(desktop) {
    ui.owner = [this] { return Window(); };
}

long AutomationHost::Check(SpellCheckArguments& arguments) {
    form_ = std::make_unique<frmNewSpell>(frmNewSpell::Surroundings{
        program_, desktop_, shared_, PlacementStore::Of(program_.state, ProgramFolder())});
    try {
        if (!form_->Make()) throw std::runtime_error("no window");
        const long result = form_->SpellCheck(arguments);
        const bool goes_on = result >= kChecked && arguments.blnShowAutomationAlone &&
                             !form_->Session().Words().empty();
        if (!goes_on) form_.reset();
        return result;
    } catch (...) {
        form_.reset();
        throw;
    }
}

void AutomationHost::CallerEnded() {
    if (!form_) return;
    form_->CallerEnded();
    EndMenu();
    const bool box_is_open = CloseBoxes();
    // What runs is only told to stop; else a command under the box may still need the window.
    if (!box_is_open || form_->IsRunning()) form_->Unload();
}

}  // namespace wordhawk
