#pragma once

#include "app/program_state.h"

namespace wordhawk {

/// Data folder of the current user: application data, company, product.
Path ComputeDataFolder();

/// Makes the folder tree under `state.DataFolder` (computed when empty), and sets LanguageId,
/// LanguageDictFolder, SettingsFile and FoldersReady. A folder that cannot be made is skipped. The
/// caller chooses the language afterwards.
void PrepareFolders(ProgramState& state);

}  // namespace wordhawk
