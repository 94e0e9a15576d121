// What keys do in the main window, and where the keyboard goes.
#include "ui/main_window/frmNewSpell.h"

namespace wordhawk {

// ---- keys ----

bool frmNewSpell::OnKey(const MSG& message) {
    const auto key = static_cast<UINT>(message.wParam);
    // The right Alt key of many keyboards counts as both, and writes letters.
    const bool control = GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0;
    const bool shift = GetKeyState(VK_SHIFT) < 0;
    const bool going_up = message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
    key_repeats_ = !going_up && IsRepeat(message);
    switch (message.message) {
        case WM_SYSKEYUP: return GetKeyState(VK_CONTROL) >= 0 && !shift && Form_KeyUp(key);
        case WM_SYSKEYDOWN:
            if (key < '1' || key > '9' || GetKeyState(VK_CONTROL) < 0 || shift) return false;
            suggestions_.Pick(static_cast<int>(key - '0'));
            return true;
        case WM_KEYDOWN:
            if (key == VK_RETURN) return !held_.Counts(message) || OnEnter();
            if (key == VK_ESCAPE || key == VK_F7 || key == VK_F8 ||
                ((key == 'O' || key == 'S') && control)) {
                return key_repeats_ || OnCommandKey(key);
            }
            return false;
        default: return false;
    }
}

bool frmNewSpell::OnCommandKey(UINT key) {
    switch (key) {
        case VK_F7: cmdSpellcheck.Click(); return true;
        case VK_F8: cmdEverywhere.Click(); return true;
        case 'O': cmdOpen.Click(); return true;
        case 'S': cmdSaveAs.Click(); return true;
        default:
            // Elsewhere the dialog manager makes of Esc what it is.
            if (!rtbW.HasFocus()) return false;
            cmdCancel_Click();
            return true;
    }
}

bool frmNewSpell::OnEnter() {
    if (rtbW.HasFocus()) return false;
    if (Button* button = FocusedButton()) {
        button->Click();
        return true;
    }
    for (const ComboBox* combo : {&cboChgTo, &cboDicts}) {
        if (combo->HasFocus() && combo->DroppedDown()) return false;
    }
    if (cmdChange.Enabled()) {
        cmdChange.Click();
    } else {
        program_.ui.Beep();
    }
    return true;
}

// With Alt alone: the access keys of "Search/Change &to" and "Sugg&estions", whatever the language
// made of these captions.
bool frmNewSpell::Form_KeyUp(UINT key) {
    if (key == 'T') txtChgTo.SetFocus();
    if (key == 'E') lstSug.SetFocus();
    return key == 'T' || key == 'E';
}

// ---- focus ----

// A command may disable or hide the control that has the focus; then the keyboard would be dead. It
// never goes into the document by itself: there the next key would replace the selected word.
void frmNewSpell::KeepFocus() {
    if (handle_ == nullptr || GetActiveWindow() != handle_) return;
    const HWND focus = GetFocus();
    if (focus != nullptr && focus != handle_ && IsWindowEnabled(focus) && IsWindowVisible(focus))
        return;
    const bool correcting = !commands_.session.Words().empty();
    const Control& wanted = cmdChange.Enabled() ? static_cast<const Control&>(cmdChange)
                            : correcting        ? static_cast<const Control&>(txtChgTo)
                                                : lstNID;
    wanted.SetFocus();
}

void frmNewSpell::MoveFocus(const Control& control) {
    // What is down now was meant for where the keyboard is now.
    held_.Forget();
    if (GetActiveWindow() == handle_) {
        control.SetFocus();
    } else {
        last_focus_ = control.Handle();
    }
}

// A key on its way to the text that was there before must not change the one that came.
void frmNewSpell::LeaveDocument() {
    if (rtbW.HasFocus()) MoveFocus(lstNID);
}

void frmNewSpell::OnKeyHandled(UINT message, HWND focus_before) {
    if (message == WM_SYSCHAR) GiveFocusBack(focus_before);
    // The dialog manager looks for the button that Enter presses among the form's own children, and
    // so does not see that it is in a panel.
    const Button* focused = FocusedButton();
    cmdChange.SetDefault(focused == nullptr || focused == &cmdChange);
}

// A command given by its access key leaves the keyboard where it was: else the next Enter would
// press the same button again instead of taking the suggestion.
void frmNewSpell::GiveFocusBack(HWND control) {
    const Button* pressed = FocusedButton();
    if (pressed == nullptr || pressed->Handle() == control || GetActiveWindow() != handle_) return;
    // In the document the next key would replace the word that the command selected there.
    const bool word_is_selected =
        !commands_.session.Words().empty() && document.Selection().length > 0;
    if (control == rtbW.Handle() && word_is_selected) control = txtChgTo.Handle();
    if (IsWindowEnabled(control) && IsWindowVisible(control)) {
        SendMessageW(handle_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    }
}

Button* frmNewSpell::FocusedButton() {
    const HWND focus = GetFocus();
    Button* button = ButtonWithId(GetDlgCtrlID(focus));
    return button != nullptr && button->Handle() == focus ? button : nullptr;
}

// The dialog manager gives the focus back after another window had it only to a control that can
// take it.
void frmNewSpell::OnActivate(bool active) {
    if (active) {
        // A key that is down now was meant for the window before.
        held_.Forget();
        // Under a box that waits for its answer.
        if (!IsWindowEnabled(handle_)) return;
        if (last_focus_ != nullptr && IsWindow(last_focus_) && IsWindowEnabled(last_focus_)) {
            ::SetFocus(last_focus_);
        }
        KeepFocus();
    } else {
        last_focus_ = GetFocus();
    }
}

}  // namespace wordhawk
