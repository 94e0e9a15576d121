#pragma once

#include "platform/result.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

using Path = std::filesystem::path;

/// Paths are made from and shown as text only through these two: UTF-16 on Windows, UTF-8 on Linux
/// (whatever the locale). Backslashes are left alone.
Path PathFromText(std::wstring_view text);
std::wstring TextFromPath(const Path& path);

/// A path for a message, in UTF-8 with the system's separators.
std::string PathForMessage(const Path& path);

/// What may be read as a file: a pipe or a device can stand in for a file that the user names, but
/// never for one of the program's own, where it could keep the program waiting for ever.
enum class Accepted { RegularFiles, Streams };

/// Reads a whole file as bytes. Errors: missing, unreadable, a folder, not among what is accepted.
Result<std::string> ReadWholeFile(const Path& path, Accepted accepted = Accepted::RegularFiles);

/// Whether nothing stands at `path`. False also where that cannot be told, say for want of rights.
bool IsMissing(const Path& path);

/// The file that a chain of symbolic links ends at, which need not exist; `path` as it is when it
/// is no link. Errors: a chain without an end.
Result<Path> FollowLinks(const Path& path);

/// Whether something that can be opened as a file stands at `path` (a folder does not count).
bool IsFile(const Path& path);
bool IsFolder(const Path& path);

/// Makes the folder and any missing parents. True when it stands afterwards.
bool MakeFolder(const Path& path);

/// Names (not paths) of the files in `folder` whose extension is `extension` (with its dot, without
/// regard to case), in ascending order of their upper-cased names. A missing folder has none.
std::vector<std::wstring> ListFiles(const Path& folder, std::wstring_view extension);

/// Names of the sub-folders of `folder`, ascending.
std::vector<std::wstring> ListFolders(const Path& folder);

/// Deletes a file; errors: missing, in use, read-only.
Result<void> DeleteOneFile(const Path& path);

}  // namespace wordhawk
