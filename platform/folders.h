#pragma once

#include "platform/files.h"

namespace wordhawk {

/// Identifier of the roaming application-data folder.
inline constexpr int kApplicationDataFolder = 26;

/// The path of a special folder by its Windows number. On Linux 26 is $XDG_DATA_HOME, else
/// ~/.local/share. Empty when the system does not know it.
Path SpecialFolder(int number);

/// The running program's file and the folder that holds it.
Path ProgramFile();
Path ProgramFolder();

/// A folder for temporary files.
Path TemporaryFolder();

}  // namespace wordhawk
