#pragma once

#include "engine/program.h"
#include "ui/desktop.h"
#include "ui/main_window/correction_commands.h"
#include "ui/main_window/main_menus.h"
#include "ui/main_window/new_spell_controls.h"
#include "ui/main_window/status_line.h"
#include "ui/main_window/suggestion_pane.h"

namespace wordhawk {

/// What the entries of the main window's pop-up menus do, and when they can be chosen.
class MainMenuCommands {
  public:
    struct Parts {
        Program& program;
        Desktop& desktop;
        NewSpellControls& controls;
        MainMenus& menus;
        CorrectionCommands& commands;
        SuggestionPane& suggestions;
        StatusLine& status;
    };
    explicit MainMenuCommands(const Parts& parts) : parts_(parts) {}

    /// The menu that a right click on a control shows; null for none.
    PopupMenu* MenuOf(HWND control) const;
    /// Enables the entries of a menu that is about to open.
    void Update(HMENU menu);
    void Run(int command);

    void mnuFiles_Click(int index);
    void mnuCustD_Click(int index);
    void mnuSearchBy_Click(int index);
    void mnuDiversity_Click();
    void mnuAlwaysEverywhere_Click();
    void mnuRemoveWord_Click(int index);
    void mnuList_Click(int index);

  private:
    void UpdateFileMenu();

    Parts parts_;
};

}  // namespace wordhawk
