// Which event of which control, menu or key calls which method of the main window.
#include "engine/session/captions.h"
#include "ui/framework/themed_drawing.h"
#include "ui/main_window/frmNewSpell.h"
#include "ui/resource.h"

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>

namespace wordhawk {

bool frmNewSpell::OnCommand(const ControlEvent& event) {
    if (event.control == nullptr && event.id == IDCANCEL) {
        cmdCancel_Click();
        return true;
    }
    const bool is_button =
        (event.id >= main_id::cmdChange && event.id <= main_id::cmdPreferences) ||
        event.id == main_id::cmdUndoAdd;
    if (is_button) {
        return event.code == BN_CLICKED && OnButton(event.id);
    }
    return OnControl(event);
}

bool frmNewSpell::OnButton(int id) {
    const Button* button = ButtonWithId(id);
    if (button == nullptr || !button->Enabled()) return true;
    switch (id) {
        case main_id::cmdChange: cmdChange_Click(); break;
        case main_id::cmdChangeAll: cmdChangeAll_Click(); break;
        case main_id::cmdIgnore: cmdIgnore_Click(); break;
        case main_id::cmdIgnoreAll: cmdIgnoreAll_Click(); break;
        case main_id::cmdAdd:
        case main_id::cmdAdd_last: cmdAdd_Click(id - main_id::cmdAdd); break;
        case main_id::cmdAddAll:
        case main_id::cmdAddAll_last: cmdAddAll_Click(id - main_id::cmdAddAll); break;
        case main_id::cmdCancel: cmdCancel_Click(); return true;
        case main_id::cmdCopyData: cmdCopyData_Click(); break;
        case main_id::cmdSpellcheck: cmdSpellcheck_Click(); break;
        case main_id::cmdSuggestions: cmdSuggestions_Click(); break;
        case main_id::cmdOpen: cmdOpen_Click(); break;
        case main_id::cmdSaveAs: cmdSaveAs_Click(); break;
        case main_id::cmdOptions: cmdOptions_Click(); break;
        case main_id::cmdPreferences: cmdPreferences_Click(); break;
        case main_id::cmdUndoAdd: commands_.UndoLastAdd(); break;
        default: return false;
    }
    KeepFocus();
    return true;
}

bool frmNewSpell::OnControl(const ControlEvent& event) {
    struct Route {
        int id;
        int code;
        void (frmNewSpell::*handler)();
    };
    static constexpr Route kRoutes[] = {
        {main_id::rtbW, EN_CHANGE, &frmNewSpell::rtbW_Change},
        {main_id::txtChgTo, EN_CHANGE, &frmNewSpell::txtChgTo_Change},
        {main_id::lstNID, LBN_SELCHANGE, &frmNewSpell::lstNID_Click},
        {main_id::lstSug, LBN_SELCHANGE, &frmNewSpell::lstSug_Click},
        {main_id::lstSco, LBN_SELCHANGE, &frmNewSpell::lstSco_Click},
        {main_id::lstSco, LBN_DBLCLK, &frmNewSpell::lstSco_DblClick},
        {main_id::cboChgTo, CBN_SELCHANGE, &frmNewSpell::cboChgTo_Click},
        {main_id::cboDicts, CBN_SELCHANGE, &frmNewSpell::cboDicts_Click},
        {main_id::lblNID, STN_CLICKED, &frmNewSpell::lblNID_Click},
    };
    for (const Route& route : kRoutes) {
        if (route.id != event.id || route.code != event.code) continue;
        (this->*route.handler)();
        return true;
    }
    return false;
}

void frmNewSpell::OnScroll(HWND control) {
    if (control == hsScore.Handle()) hsScore_Change();
    if (control == hsdiversity.Handle()) hsdiversity_Change();
}

bool frmNewSpell::OnTimer(UINT_PTR id) {
    if (id != ClosingTimer::kId) return false;
    tmrBye_Timer();
    return true;
}

// ---- keys ----

bool frmNewSpell::OnKey(const MSG& message) {
    const auto key = static_cast<UINT>(message.wParam);
    // The right Alt key of many keyboards counts as both, and writes letters.
    const bool control = GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0;
    const bool shift = GetKeyState(VK_SHIFT) < 0;
    switch (message.message) {
        case WM_SYSKEYUP: return GetKeyState(VK_CONTROL) >= 0 && !shift && Form_KeyUp(key);
        case WM_SYSKEYDOWN:
            if (key < '1' || key > '9' || GetKeyState(VK_CONTROL) < 0 || shift) return false;
            suggestions_.Pick(static_cast<int>(key - '0'));
            return true;
        case WM_KEYDOWN:
            if (key == VK_F7) cmdSpellcheck.Click();
            if (key == VK_ESCAPE && rtbW.HasFocus()) cmdCancel_Click();
            if (key == 'O' && control) cmdOpen.Click();
            if (key == 'S' && control) cmdSaveAs.Click();
            if (key == VK_RETURN) return OnEnter();
            return key == VK_F7 || (key == VK_ESCAPE && handle_ == nullptr) ||
                   ((key == 'O' || key == 'S') && control);
        default: return false;
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

// ---- menus ----

bool frmNewSpell::OnContextMenu(const ContextRequest& request) {
    PopupMenu* menu = menu_commands_.MenuOf(request.control);
    if (menu == nullptr) return false;
    if (request.control == lstSug.Handle() && !request.by_keyboard)
        SelectSuggestionUnder(request.screen);
    ShowMenu(*menu, request);
    return true;
}

void frmNewSpell::SelectSuggestionUnder(POINT screen) {
    ScreenToClient(lstSug.Handle(), &screen);
    if (const auto row = lstSug.At(screen)) {
        lstSug.Select(*row);
        lstSco.Select(*row);
    }
}

void frmNewSpell::ShowMenu(PopupMenu& menu, const ContextRequest& request) {
    POINT at = request.screen;
    if (request.by_keyboard) {
        RECT bounds{};
        GetWindowRect(request.control, &bounds);
        at = {bounds.left + Scaled(8), (bounds.top + bounds.bottom) / 2};
    }
    menu_commands_.Update(menu.Handle());
    const int command = desktop_.menus.Track(handle_, menu.Handle(), at);
    if (command == 0) return;
    menu_commands_.Run(command);
    KeepFocus();
}

void frmNewSpell::OnInitMenu(HMENU menu) { menu_commands_.Update(menu); }

// ---- looks ----

void frmNewSpell::OnSize(int, int) { Form_Resize(); }

void frmNewSpell::OnMinimumSize(SIZE& smallest) { smallest = MainGeometry::Smallest(Dpi()); }

void frmNewSpell::OnFontsChanged() {
    const int height = EntryHeight(Font(), Dpi());
    for (ListBox* list : {&lstNID, &lstSug, &lstSco}) list->SetItemHeight(height);
    for (ComboBox* combo : {&cboChgTo, &cboDicts}) combo->SetItemHeight(height);
    cboChgTo.SetListWidth(Scaled(220));
    SendMessageW(lblNID.Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(BoldFont()), TRUE);
    Form_Resize();
}

void frmNewSpell::OnAppearanceChanged() {
    if (!theme_.Refresh()) return;
    theme_.Decorate(handle_);
    document.ApplyTheme();
}

HBRUSH frmNewSpell::OnControlColor(UINT message, HDC device, HWND control) {
    const HBRUSH brush = theme_.Prepare(message, device, control);
    if (control == lblNID.Handle()) SetTextColor(device, theme_.Use().accent);
    return brush;
}

bool frmNewSpell::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const int row = static_cast<int>(item.itemID);
    const auto draws = [&](const Control& control) { return item.hwndItem == control.Handle(); };
    if (draws(lstNID)) {
        const std::size_t count =
            row < 0 ? 0 : commands_.session.OccurrencesOf(static_cast<std::size_t>(row));
        DrawEntry(theme_, item, lstNID.Item(row), count == 0 ? L"" : std::to_wstring(count));
    } else if (draws(lstSug)) {
        DrawEntry(theme_, item, lstSug.Item(row));
    } else if (draws(lstSco)) {
        DrawEntry(theme_, item, lstSco.Item(row));
    } else if (draws(cboChgTo)) {
        DrawEntry(theme_, item, cboChgTo.Item(row));
    } else if (draws(cboDicts)) {
        DrawEntry(theme_, item, cboDicts.Item(row));
    } else {
        return false;
    }
    return true;
}

bool frmNewSpell::OnMeasureItem(MEASUREITEMSTRUCT& item) {
    item.itemHeight = static_cast<UINT>(EntryHeight(Font(), Dpi()));
    return true;
}

frmNewSpell::Reply frmNewSpell::OnNotify(NMHDR& news) {
    if (news.code == static_cast<UINT>(NM_CUSTOMDRAW)) {
        if (Button* button = ButtonWithId(static_cast<int>(news.idFrom))) {
            return DrawButton(theme_, reinterpret_cast<const NMCUSTOMDRAW&>(news),
                              button == &cmdChange);
        }
    }
    return {};
}

frmNewSpell::Reply frmNewSpell::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_ENDSESSION && wparam != FALSE) {
        Unload();
        return 0;
    }
    return Dialog::OnMessage(message, wparam, lparam);
}

// ---- focus ----

// A command may disable or hide the control that has the focus; then the keyboard would be dead.
void frmNewSpell::KeepFocus() {
    if (handle_ == nullptr || GetActiveWindow() != handle_) return;
    const HWND focus = GetFocus();
    if (focus != nullptr && focus != handle_ && IsWindowEnabled(focus) && IsWindowVisible(focus))
        return;
    const Control* const wanted[] = {&cmdChange, &txtChgTo, &rtbW};
    for (const Control* control : wanted) {
        if (control == &txtChgTo && commands_.session.Words().empty()) continue;
        if (!control->Enabled()) continue;
        control->SetFocus();
        return;
    }
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
