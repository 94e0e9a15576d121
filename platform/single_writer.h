#pragma once

#include "platform/files.h"

#include <chrono>
#include <memory>

namespace wordhawk {

class LockFile;

/// Advisory lock between running copies of the program (and threads of one copy): held from Acquire
/// to destruction, released by the system if the process dies. One lock a folder, kept in a small
/// hidden file there; take it around read - change - replace. The native program and the Windows
/// program under Wine keep each other out as well. Not for two at once in one thread.
class SingleWriter {
  public:
    /// Longer than any change takes, even with many programs in line for the lock.
    static constexpr std::chrono::milliseconds kLongestWait{20'000};

    /// Waits for the lock, then clears away temporary files that killed programs left in the
    /// folder. Errors: the folder is missing or does not allow a file to be made; the lock file is
    /// a link; someone else kept the lock for all of `longest_wait`.
    static Result<SingleWriter> Acquire(const Path& folder,
                                        std::chrono::milliseconds longest_wait = kLongestWait);

    SingleWriter(SingleWriter&&) noexcept;
    SingleWriter& operator=(SingleWriter&&) noexcept;
    ~SingleWriter();

  private:
    explicit SingleWriter(std::unique_ptr<LockFile> file);
    std::unique_ptr<LockFile> file_;
};

/// The right to change one file: the lock of the folder where it really lies, and its path there.
struct LockedFile {
    SingleWriter lock;
    Path path;
};

/// Locks the file that `path` stands for; behind links that is the folder of the file itself, so
/// that all who reach it by different ways wait for each other. The file need not exist, its
/// folder must.
Result<LockedFile> LockForChange(const Path& path);

}  // namespace wordhawk
