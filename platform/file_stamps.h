#pragma once

#include "platform/files.h"

#include <cstdint>
#include <string>
#include <vector>

namespace wordhawk {

/// Tells whether a file is the one that was seen before, without reading it: any writing changes
/// the time, a replacement by rename the number too (0 where the system gives none cheaply).
struct FileStamp {
    std::uint64_t size = 0;
    std::uint64_t time = 0;  ///< of the last change, in the system's own unit
    std::uint64_t number = 0;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// The stamp of a file or folder (whose time changes with the names in it); all zero when it is
/// missing.
FileStamp StampOf(const Path& path);

struct StampedName {
    std::wstring name;
    FileStamp stamp;
};

/// The files of a folder whose names end in `extension` (with its dot, in lower case), ascending by
/// name; none when the folder is missing.
std::vector<StampedName> StampedFiles(const Path& folder, std::wstring_view extension);

}  // namespace wordhawk
