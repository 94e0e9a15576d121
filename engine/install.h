#pragma once

#include "app/program_state.h"

namespace wordhawk {

/// Copies the shipped dictionaries of the language in force from `shipped` (one folder a pack,
/// named by its locale number) into the language's dictionary folder, when that folder has no
/// dictionary yet. The copy appears there whole or not at all. True when the folder has
/// dictionaries afterwards.
bool InstallShippedDictionaries(const ProgramState& state, const Path& shipped);

}  // namespace wordhawk
