#pragma once

#include "platform/files.h"

#include <string>
#include <string_view>

namespace wordhawk::test {

/// A fresh folder that is deleted with everything in it at the end of the scope.
class TempDir {
  public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const Path& Folder() const { return folder_; }
    Path operator/(std::wstring_view name) const { return folder_ / PathFromText(name); }

  private:
    Path folder_;
};

/// Writes bytes as they are, making missing parent folders.
void WriteBytes(const Path& path, std::string_view bytes);

/// The file's bytes; empty when it is missing.
std::string ReadBytes(const Path& path);

/// How many files and folders lie directly in a folder.
std::size_t CountEntries(const Path& folder);

}  // namespace wordhawk::test
