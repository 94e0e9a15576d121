#include "ui/main_window/main_menu_commands.h"

#include "app/modRegs.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"

#include <array>

namespace wordhawk {

using modLoadRes::LoadResText;

PopupMenu* MainMenuCommands::MenuOf(HWND control) const {
    NewSpellControls& c = parts_.controls;
    MainMenus& menus = parts_.menus;
    if (control == c.rtbW.Handle()) {
        return parts_.program.state.ProgramMode ? &menus.mnuFile : nullptr;
    }
    if (control == c.cmdAdd[1].Handle()) return &menus.mnuCust;
    if (control == c.lstSug.Handle()) return &menus.mnuRemove;
    if (control == c.lstNID.Handle()) return &menus.mnuList;
    for (const Control* searching :
         {static_cast<Control*>(&c.cmdSuggestions), static_cast<Control*>(&c.hsScore),
          static_cast<Control*>(&c.hsdiversity), static_cast<Control*>(&c.lbldiversity),
          static_cast<Control*>(&c.cmdEverywhere), static_cast<Control*>(&c.chkEverywhere)}) {
        if (control == searching->Handle()) return &menus.mnuSearch;
    }
    return nullptr;
}

void MainMenuCommands::Update(HMENU menu) {
    MainMenus& menus = parts_.menus;
    if (menu == menus.mnuFile.Handle()) UpdateFileMenu();
    if (menu == menus.mnuRemove.Handle()) {
        const bool selected = parts_.suggestions.HasSelection();
        menus.mnuRemove[MainMenus::kRemove]->SetEnabled(selected);
        menus.mnuRemove[MainMenus::kCopySuggestion]->SetEnabled(selected);
        menus.mnuRemove[MainMenus::kCopySuggestions]->SetEnabled(parts_.controls.lstSug.Count() >
                                                                 0);
    }
    if (menu == menus.mnuSearch.Handle())
        menus.mnuEverywhere->SetEnabled(parts_.controls.cmdEverywhere.Enabled());
    if (menu == menus.mnuList.Handle()) {
        menus.mnuList[0]->SetEnabled(parts_.controls.lstNID.Selected() >= 0);
        menus.mnuList[1]->SetEnabled(parts_.controls.lstNID.Count() > 0);
    }
    if (menu == menus.mnuCust.Handle()) {
        const bool can_add = parts_.controls.cmdAdd[1].Enabled();
        for (std::size_t i = 0; i < menus.mnuCust.Count(); ++i)
            menus.mnuCust[i]->SetEnabled(can_add);
    }
}

void MainMenuCommands::UpdateFileMenu() {
    NewSpellControls& c = parts_.controls;
    MainMenus& menus = parts_.menus;
    const bool has_selection = c.rtbW.HasFocus() && c.document.Selection().length > 0;
    const Clipboard& clipboard = parts_.desktop.clipboard;
    menus.mnuFile[MainMenus::kUndo]->SetEnabled(c.document.CanUndo());
    menus.mnuFile[MainMenus::kCut]->SetEnabled(has_selection);
    menus.mnuFile[MainMenus::kCopy]->SetEnabled(has_selection);
    menus.mnuFile[MainMenus::kPaste]->SetEnabled(clipboard.HasPlainText() ||
                                                 clipboard.HasRichText());
    menus.mnuFile[MainMenus::kDelete]->SetEnabled(has_selection);
    menus.mnuFile[MainMenus::kSelectAll]->SetEnabled(!c.document.Empty());
}

void MainMenuCommands::Run(int command) {
    const auto choice = parts_.menus.Decode(command);
    if (!choice) return;
    const MainMenus& menus = parts_.menus;
    if (choice->menu == &menus.mnuFile) mnuFiles_Click(choice->index);
    if (choice->menu == &menus.mnuCust) mnuCustD_Click(choice->index);
    if (choice->menu == &menus.mnuRemove) mnuRemoveWord_Click(choice->index);
    if (choice->menu == &menus.mnuList) mnuList_Click(choice->index);
    if (choice->menu == &menus.mnuSearch) {
        if (choice->index < MainMenus::kSearchModes) mnuSearchBy_Click(choice->index);
        if (choice->index == MainMenus::kDiversity) mnuDiversity_Click();
        if (choice->index == MainMenus::kAlwaysEverywhere) mnuAlwaysEverywhere_Click();
        if (choice->index == MainMenus::kEverywhere) parts_.controls.cmdEverywhere.Click();
    }
}

void MainMenuCommands::mnuFiles_Click(int index) {
    struct Request {
        UINT message;
        WPARAM first;
        LPARAM second;
    };
    static constexpr std::array<Request, 8> kRequests = {{{EM_UNDO, 0, -1},
                                                          {WM_NULL, 0, 0},
                                                          {WM_CUT, 0, 0},
                                                          {WM_COPY, 0, 0},
                                                          {WM_PASTE, 0, 0},
                                                          {WM_CLEAR, 0, 0},
                                                          {WM_NULL, 0, 0},
                                                          {EM_SETSEL, 0, -1}}};
    const Request& request = kRequests[static_cast<std::size_t>(index)];
    parts_.controls.rtbW.Request(request.message, request.first, request.second);
}

void MainMenuCommands::mnuCustD_Click(int index) {
    const auto& names = parts_.program.settings.CustomDictionaries;
    const auto at = static_cast<std::size_t>(index);
    if (at < names.size()) parts_.commands.AddTo(names[at]);
}

void MainMenuCommands::mnuSearchBy_Click(int index) {
    parts_.menus.CheckSearchMode(index);
    parts_.program.settings.SortBy = static_cast<std::uint8_t>(index);
    modRegs::SaveSetting(parts_.program.state, parts_.program.settings, L"SortBy");
}

void MainMenuCommands::mnuDiversity_Click() {
    MenuItem& item = *parts_.menus.mnuDiversity;
    item.SetChecked(!item.Checked());
    parts_.program.settings.ExtraDiversity = item.Checked() ? 1 : 0;
}

void MainMenuCommands::mnuAlwaysEverywhere_Click() {
    parts_.suggestions.SetAlwaysEverywhere(!parts_.menus.mnuAlwaysEverywhere->Checked());
    parts_.menus.mnuAlwaysEverywhere->SetChecked(parts_.controls.chkEverywhere.Checked());
}

void MainMenuCommands::mnuRemoveWord_Click(int index) {
    const std::wstring word = parts_.suggestions.SelectedSuggestion();
    if (index == MainMenus::kCopySuggestion) {
        if (!word.empty()) parts_.commands.PutOnClipboard(word);
    } else if (index == MainMenus::kCopySuggestions) {
        parts_.commands.PutOnClipboard(parts_.suggestions.WholeList());
    } else if (index == MainMenus::kRemove) {
        parts_.commands.RemoveSuggestion();
    }
}

void MainMenuCommands::mnuList_Click(int index) {
    const ListBox& list = parts_.controls.lstNID;
    std::wstring text;
    if (index == 0) {
        text = list.Item(list.Selected());
    } else {
        for (const std::wstring& word : parts_.commands.session.Words()) text += word + L"\r\n";
    }
    if (!text.empty()) parts_.commands.PutOnClipboard(text);
}

}  // namespace wordhawk
