#pragma once

#include "platform/files.h"

#include <memory>
#include <string_view>

namespace wordhawk {

/// A whole file as read-only memory, brought in page by page as it is touched. Files that are
/// replaced as a whole (see replace_file.h) keep the content they had when they were opened.
class MappedFile {
  public:
    /// Errors: missing, unreadable, a folder, empty.
    static Result<MappedFile> Open(const Path& path);

    MappedFile(MappedFile&&) noexcept;
    MappedFile& operator=(MappedFile&&) noexcept;
    ~MappedFile();

    /// Valid as long as the object; starts at an address that any number may stand at.
    std::string_view Bytes() const;

  private:
    struct Mapping;
    explicit MappedFile(std::unique_ptr<Mapping> mapping);
    std::unique_ptr<Mapping> mapping_;
};

}  // namespace wordhawk
