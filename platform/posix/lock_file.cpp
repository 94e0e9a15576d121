#include "platform/lock_file.h"

#include "platform/posix/errors.h"
#include "platform/posix/file_descriptor.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

namespace wordhawk {
namespace {

class PosixLockFile final : public LockFile {
  public:
    PosixLockFile(const Path& folder, Path path, FileDescriptor file)
        : folder_(folder),
          path_(std::move(path)),
          file_(std::move(file)),
          opened_folder_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

    Result<bool> TryLock() override {
        // The folder too: anybody may delete the lock file while we work, but not the folder. Where
        // folders cannot be locked, the file alone has to do.
        const bool folder_is_taken = flock(opened_folder_.Get(), LOCK_EX | LOCK_NB) != 0 &&
                                     (errno == EWOULDBLOCK || errno == EINTR);
        if (folder_is_taken) return false;
        Result<bool> locked = TryLockFirstByte();
        if (!locked.value_or(false)) flock(opened_folder_.Get(), LOCK_UN);
        return locked;
    }

    bool IsInPlace() const override {
        struct stat mine {};
        struct stat there {};
        return fstat(file_.Get(), &mine) == 0 && lstat(path_.c_str(), &there) == 0 &&
               mine.st_dev == there.st_dev && mine.st_ino == there.st_ino;
    }

  private:
    Result<bool> TryLockFirstByte() {
        // As the Windows program has it: under Wine the two meet there. A lock by flock is of
        // another kind, which Wine's does not see.
        struct flock first_byte {};
        first_byte.l_type = F_WRLCK;
        first_byte.l_whence = SEEK_SET;
        first_byte.l_start = 0;
        first_byte.l_len = 1;
        while (fcntl(file_.Get(), F_OFD_SETLK, &first_byte) != 0) {
            if (errno == EAGAIN || errno == EACCES) return false;
            if (errno != EINTR) return tl::unexpected(ErrorFromErrno(errno, folder_));
        }
        return true;
    }

    Path folder_;
    Path path_;
    FileDescriptor file_;
    FileDescriptor opened_folder_;
};

}  // namespace

Result<std::unique_ptr<LockFile>> OpenLockFile(const Path& folder) {
    Path path = folder / ".wordhawk.lock";
    FileDescriptor file(
        open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666));
    if (!file) {
        const int code = errno;
        if (code == ENOENT) return tl::unexpected(Error{L"the folder does not exist", folder});
        if (code == ELOOP)
            return tl::unexpected(Error{L"the lock file is a link; delete it and try again", path});
        return tl::unexpected(ErrorFromErrno(code, folder));
    }
    struct stat status {};
    if (fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode))
        return tl::unexpected(Error{L"the lock file is not a regular file", path});
    return std::make_unique<PosixLockFile>(folder, std::move(path), std::move(file));
}

}  // namespace wordhawk
