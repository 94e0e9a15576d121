#include "platform/replace_file.h"

#include "platform/posix/errors.h"
#include "platform/posix/file_descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>
#include <utility>

namespace wordhawk {
namespace {

/// The file that a chain of symbolic links ends at, which need not exist.
Result<Path> FollowLinks(Path path) {
    for (int links = 0; links < 40; ++links) {
        struct stat status {};
        if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
        std::error_code error;
        const Path target = std::filesystem::read_symlink(path, error);
        if (error) return tl::unexpected(ErrorFromErrno(error.value(), path));
        path = target.is_absolute() ? target : path.parent_path() / target;
    }
    return tl::unexpected(ErrorFromErrno(ELOOP, path));
}

struct Temporary {
    Path path;
    FileDescriptor file;
};

/// A fresh file beside `target`, its name short whatever the target is called. A crashed program
/// may have left one behind under the same process number, hence the tries.
Temporary MakeTemporaryBeside(const Path& target) {
    static std::atomic<unsigned> counter{0};
    for (int tries = 0;; ++tries) {
        Path path = target.parent_path() / (".wordhawk-" + std::to_string(getpid()) + "-" +
                                            std::to_string(++counter) + ".tmp");
        FileDescriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (file || errno != EEXIST || tries == 100) return {std::move(path), std::move(file)};
    }
}

/// Writes everything and, if wanted, brings it to the disk; 0 or the errno of the first failure.
int WriteAll(FileDescriptor& file, std::string_view bytes, Durability durability) {
    while (!bytes.empty()) {
        const ssize_t written = write(file.Get(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) return errno;
        if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    // Some file systems (and pipes) cannot be flushed, which is no failure of the write.
    const bool flush = durability == Durability::Flushed;
    if (flush && fsync(file.Get()) != 0 && errno != EINVAL && errno != ENOSYS) return errno;
    return file.Close() ? 0 : errno;
}

void FlushFolder(const Path& folder) {
    const FileDescriptor handle(
        open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle) fsync(handle.Get());
}

}  // namespace

Result<void> ReplaceFileContents(const Path& path, std::string_view bytes, Durability durability) {
    const Result<Path> target = FollowLinks(path);
    if (!target) return tl::unexpected(target.error());

    struct stat old {};
    const bool exists = stat(target->c_str(), &old) == 0;
    if (exists && S_ISDIR(old.st_mode)) return tl::unexpected(ErrorFromErrno(EISDIR, path));
    if (exists && !S_ISREG(old.st_mode)) {
        return tl::unexpected(Error{L"this is a device, not a file", path});
    }
    // Asked of the mode and not of the system, which lets the superuser write everywhere.
    if (exists && (old.st_mode & S_IWUSR) == 0) {
        return tl::unexpected(Error{L"the file is read-only", path});
    }

    auto [temporary, file] = MakeTemporaryBeside(*target);
    if (!file) {
        const int code = errno;
        if (code == ENOENT) return tl::unexpected(Error{L"the folder does not exist", path});
        return tl::unexpected(ErrorFromErrno(code, path));
    }
    if (exists) {
        // Owner first: changing it may clear mode bits. Neither is worth failing for.
        [[maybe_unused]] const int owner = fchown(file.Get(), old.st_uid, old.st_gid);
        [[maybe_unused]] const int mode = fchmod(file.Get(), old.st_mode & 07777);
    }
    int failure = WriteAll(file, bytes, durability);
    if (failure == 0 && std::rename(temporary.c_str(), target->c_str()) != 0) failure = errno;
    if (failure != 0) {
        unlink(temporary.c_str());
        return tl::unexpected(ErrorFromErrno(failure, path));
    }
    if (durability == Durability::Flushed) FlushFolder(target->parent_path());
    return {};
}

}  // namespace wordhawk
