#pragma once

#include "app/program_state.h"
#include "platform/result.h"

namespace wordhawk {

/// Copies the shipped dictionaries of the language in force from `shipped` (one folder a pack,
/// named by its locale number) into the language's dictionary folder, when that folder has no
/// dictionary yet, and brings an older pack there up to the shipped one (see UpdatePack). The copy
/// appears there whole or not at all. Whether the folder has dictionaries afterwards: false when
/// none are shipped for the language. Errors: those that are could not be copied.
Result<bool> InstallShippedDictionaries(const ProgramState& state, const Path& shipped);

/// Copies the sounds in `shipped` into the sound folder, when that has none yet. True when it has
/// some afterwards.
bool InstallShippedSounds(const ProgramState& state, const Path& shipped);

}  // namespace wordhawk
