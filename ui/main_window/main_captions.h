#pragma once

#include "app/program_state.h"
#include "ui/main_window/main_menus.h"
#include "ui/main_window/new_spell_controls.h"

namespace wordhawk {

/// Writes the design of the main window's texts: the text ids of tool tips and menus for
/// ApplyLanguage to replace.
void SetTextIds(NewSpellControls& controls, MainMenus& menus);

/// The captions that are composed of a prefix, a text and a suffix.
void SetComposedCaptions(const ProgramState& state, NewSpellControls& controls);

}  // namespace wordhawk
