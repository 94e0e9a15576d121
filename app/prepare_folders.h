#pragma once

#include "app/program_state.h"
#include "platform/folders.h"

namespace wordhawk {

/// The data folder: of a portable copy beside the program in `program_folder`, else the current
/// user's, which is application data, company, product.
Path ComputeDataFolder(const Path& program_folder = ProgramFolder());

/// Makes the folder tree under `state.DataFolder` (computed when empty), and sets LanguageId,
/// LanguageDictFolder, SettingsFile and FoldersReady. A folder that cannot be made is skipped;
/// where the system knows no place for the data folder, it stays empty and nothing is made. The
/// caller chooses the language afterwards.
void PrepareFolders(ProgramState& state);

}  // namespace wordhawk
