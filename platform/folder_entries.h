#pragma once

#include "platform/files.h"

namespace wordhawk {

struct FolderEntry {
    std::wstring name;
    bool is_folder;
};

/// What stands in `folder`, unordered and without "." and ".."; nothing when it cannot be read.
std::vector<FolderEntry> FolderEntries(const Path& folder);

}  // namespace wordhawk
