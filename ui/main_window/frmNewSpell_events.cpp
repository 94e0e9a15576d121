// Which event of which control, menu or key calls which method of the main window.
#include "engine/session/captions.h"
#include "lang/text_ids.h"
#include "ui/framework/themed_drawing.h"
#include "ui/main_window/frmNewSpell.h"
#include "ui/resource.h"

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>
#include <utility>

namespace wordhawk {

bool frmNewSpell::OnCommand(const ControlEvent& event) {
    if (event.control == nullptr && event.id == IDCANCEL) {
        cmdCancel_Click();
        return true;
    }
    const bool is_button =
        (event.id >= main_id::cmdChange && event.id <= main_id::cmdPreferences) ||
        event.id == main_id::cmdUndoAdd || event.id == main_id::cmdEverywhere;
    if (is_button) {
        return event.code == BN_CLICKED && OnButton(event.id);
    }
    return OnControl(event);
}

bool frmNewSpell::OnButton(int id) {
    const Button* button = ButtonWithId(id);
    if (button == nullptr || !button->Enabled()) return true;
    // A key held too long must not fill a dictionary with words that nobody looked at.
    const bool adds = id >= main_id::cmdAdd && id <= main_id::cmdAddAll_last;
    if (adds && key_repeats_) return true;
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
        case main_id::cmdEverywhere: cmdEverywhere_Click(); break;
        case main_id::cmdOpen: cmdOpen_Click(); break;
        case main_id::cmdSaveAs: cmdSaveAs_Click(); break;
        case main_id::cmdOptions: cmdOptions_Click(); break;
        case main_id::cmdPreferences: cmdPreferences_Click(); break;
        case main_id::cmdUndoAdd: commands_.UndoInDictionary(); break;
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
        {main_id::chkEverywhere, BN_CLICKED, &frmNewSpell::chkEverywhere_Click},
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
    if (id == kRecoveryTimer) {
        // What runs holds on to the text.
        if (running_ == nullptr) files_.KeepRecoveryCopy();
        return true;
    }
    if (id != ClosingTimer::kId) return false;
    tmrBye_Timer();
    return true;
}

// ---- menus ----

bool frmNewSpell::OnContextMenu(const ContextRequest& request) {
    PopupMenu* menu = menu_commands_.MenuOf(request.control);
    if (menu == nullptr) return false;
    if (request.control == lstSug.Handle() && !request.by_keyboard)
        suggestions_.SelectUnder(request.screen);
    ShowMenu(*menu, request);
    return true;
}

void frmNewSpell::ShowMenu(PopupMenu& menu, const ContextRequest& request) {
    menu_commands_.Update(menu.Handle());
    const int command = desktop_.menus.Track(handle_, menu.Handle(), request.Place());
    if (command == 0) return;
    menu_commands_.Run(command);
    KeepFocus();
}

void frmNewSpell::OnInitMenu(HMENU menu) { menu_commands_.Update(menu); }

// ---- looks ----

void frmNewSpell::OnSize(int, int) { Form_Resize(); }

void frmNewSpell::OnMinimumSize(SIZE& smallest) { smallest = geometry_.Smallest(MeasureNow()); }

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
        if (news.hwndFrom == chkEverywhere.Handle())
            return DrawCheckBox(theme_, reinterpret_cast<const NMCUSTOMDRAW&>(news));
    }
    return {};
}

frmNewSpell::Reply frmNewSpell::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_ENDSESSION && wparam != FALSE) {
        session_ends_ = true;
        Unload();
        return 0;
    }
    return Dialog::OnMessage(message, wparam, lparam);
}

void frmNewSpell::TellOfUnreadable() {
    if (const auto failure = std::exchange(program_.install_failure, std::nullopt))
        commands_.ShowError(text_id::kCannotInstall, *failure);
    const std::vector<Error>& unreadable = program_.dictionaries.Unreadable();
    const bool more = unreadable.size() > unreadable_told_;
    unreadable_told_ = unreadable.size();
    if (more) commands_.ShowError(text_id::kCannotReadDictionary, unreadable.back());
}

}  // namespace wordhawk
