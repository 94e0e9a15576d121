#include "platform/replace_file.h"

#include "platform/folder_entries.h"
#include "platform/posix/errors.h"
#include "platform/posix/file_descriptor.h"
#include "platform/temporary_name.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string_view>
#include <utility>

namespace wordhawk {
namespace {

/// Marks a temporary file as being written, for as long as one of its openings lives; 0, or the
/// errno of the refusal, which is EAGAIN when somebody else has marked it.
int MarkAsAlive(const FileDescriptor& file) {
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    return fcntl(file.Get(), F_OFD_SETLK, &whole) == 0 ? 0 : errno;
}

/// Marks a new temporary file. False when a sweeper came between its making and its mark: it is
/// gone, or about to be. Where locks are not to be had, the folder's own lock has to do.
bool MarkNewFile(const FileDescriptor& file) {
    const int refusal = MarkAsAlive(file);
    if (refusal == EAGAIN || refusal == EACCES) return false;
    struct stat status {};
    return fstat(file.Get(), &status) != 0 || status.st_nlink > 0;
}

struct Temporary {
    Path path;
    FileDescriptor file;
    /// Keeps the mark until the file has its final name; `file` is closed before that.
    FileDescriptor mark;
};

/// A fresh file beside `target`. Names that are taken are as good as impossible, and a sweeper has
/// to be quick to come in between, hence few tries.
Temporary MakeTemporaryBeside(const Path& target) {
    constexpr int kTries = 100;
    for (int tries = 1;; ++tries) {
        Path path = target.parent_path() / PathFromText(TemporaryName());
        FileDescriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        const bool ours = file ? MarkNewFile(file) : errno != EEXIST;
        if (!ours && tries < kTries) continue;
        FileDescriptor mark;
        if (file) mark = FileDescriptor(fcntl(file.Get(), F_DUPFD_CLOEXEC, 0));
        return {std::move(path), std::move(file), std::move(mark)};
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

    auto [temporary, file, mark] = MakeTemporaryBeside(*target);
    if (!file || !mark) {
        const int code = errno;
        if (file) unlink(temporary.c_str());
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

void SweepTemporaries(const Path& folder) {
    for (const FolderEntry& entry : FolderEntries(folder)) {
        if (!IsTemporaryName(entry.name)) continue;
        const Path path = folder / PathFromText(entry.name);
        const FileDescriptor file(
            open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (file && MarkAsAlive(file) == 0) unlink(path.c_str());
    }
}

}  // namespace wordhawk
