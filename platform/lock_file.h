#pragma once

#include "platform/files.h"

#include <memory>

namespace wordhawk {

/// The open file behind a SingleWriter. Closing it lets go of the lock, also when the process dies.
/// The lock belongs to this opening of the file, so threads of one program exclude each other too.
class LockFile {
  public:
    virtual ~LockFile() = default;

    /// Takes the lock without waiting; false when someone else has it.
    virtual Result<bool> TryLock() = 0;
    /// Whether the folder still has this very file: a lock on one that was deleted or replaced
    /// meanwhile keeps nobody out.
    virtual bool IsInPlace() const = 0;
};

/// Opens the lock file of `folder`, making it when missing. A link that stands in its place is
/// not followed, so that it cannot have a file made elsewhere.
Result<std::unique_ptr<LockFile>> OpenLockFile(const Path& folder);

}  // namespace wordhawk
