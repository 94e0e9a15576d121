#pragma once

#include "app/program_state.h"

namespace wordhawk {

/// Copies the shipped language files (`shipped`/langLOCALE.ini, in UTF-8) into the Resources
/// folders that have none, so that every one of them can be chosen. A file that the program itself
/// wrote and nobody changed since is brought up to date; any other is the user's and stays.
void InstallShippedLanguages(const ProgramState& state, const Path& shipped);

/// The same for one locale number alone, which gets a copy of its language's file when it is a
/// variant without one of its own.
void InstallShippedLanguage(const ProgramState& state, const Path& shipped, int locale);

}  // namespace wordhawk
