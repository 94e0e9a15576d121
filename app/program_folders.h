#pragma once

#include "platform/files.h"

#include <string_view>

namespace wordhawk {

/// The data folder of a portable copy: "Data" in `program_folder`, when a file portable.ini there
/// asks for it; else empty. Such a copy leaves the user's own folders alone.
Path PortableDataFolder(const Path& program_folder);

/// Where the files delivered with the program lie: `name` in `program_folder`, or, where programs
/// and their data are kept apart, in share/wordhawk beside it.
Path ShippedFolder(const Path& program_folder, std::string_view name);

}  // namespace wordhawk
