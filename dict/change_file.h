#pragma once

#include "platform/files.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace wordhawk {

/// What to write instead of the given bytes; none leaves the file untouched.
using FileEdit = std::function<std::optional<std::string>(std::string_view bytes)>;

/// Reads, edits and replaces a dictionary file while no other copy of the program can; a missing
/// file reads as empty, its folder is made. Returns whether the file was written. Errors: it is
/// there but cannot be read, or it cannot be locked or replaced; it is then as it was.
Result<bool> ChangeDictionaryFile(const Path& path, const FileEdit& edit);

/// Whether a line of the file equals `entry`; a missing file has none. Errors: it cannot be read.
Result<bool> FileHoldsEntry(const Path& path, std::string_view entry);

/// Removes the first line equal to `entry`; a missing file has none. Returns whether there was one.
Result<bool> RemoveEntryFromFile(const Path& path, std::string_view entry);

}  // namespace wordhawk
