#pragma once

#include "platform/files.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

namespace wordhawk {

/// A file of which only parts are read.
class PartialFile {
  public:
    /// Nothing when it cannot be opened, or is no regular file.
    static std::optional<PartialFile> Open(const Path& path);

    PartialFile(PartialFile&&) noexcept;
    PartialFile& operator=(PartialFile&&) noexcept;
    ~PartialFile();

    std::uint64_t Size() const;
    /// Reads from `offset` on and returns how many bytes there were: fewer than there is room for
    /// at the end, or when reading failed.
    std::size_t ReadAt(std::uint64_t offset, std::span<char> room) const;

  private:
    struct Opened;
    explicit PartialFile(std::unique_ptr<Opened> opened);
    std::unique_ptr<Opened> opened_;
};

}  // namespace wordhawk
