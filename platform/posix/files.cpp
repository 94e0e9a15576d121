#include "platform/files.h"

#include "platform/folder_entries.h"
#include "platform/posix/errors.h"
#include "platform/posix/file_descriptor.h"
#include "platform/text.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace wordhawk {

Path PathFromText(std::wstring_view text) { return Path(ToUtf8(text)); }

std::wstring TextFromPath(const Path& path) { return FromUtf8(path.native()); }

std::string PathForMessage(const Path& path) { return ToUtf8(FromUtf8(path.native())); }

Result<std::string> ReadWholeFile(const Path& path, Accepted accepted) {
    // Without O_NONBLOCK a pipe that nobody writes to would never be open to be looked at.
    const int without_wait = accepted == Accepted::RegularFiles ? O_NONBLOCK : 0;
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | without_wait));
    if (!file) return tl::unexpected(ErrorFromErrno(errno, path));
    struct stat status {};
    if (fstat(file.Get(), &status) != 0) return tl::unexpected(ErrorFromErrno(errno, path));
    if (S_ISDIR(status.st_mode)) return tl::unexpected(ErrorFromErrno(EISDIR, path));
    if (accepted == Accepted::RegularFiles && !S_ISREG(status.st_mode))
        return tl::unexpected(Error{L"this is a pipe or a device, not a file", path});
    // The size is only a first guess: pipes have none and a file may grow meanwhile.
    std::string bytes;
    std::size_t used = 0;
    bytes.resize(static_cast<std::size_t>(status.st_size) + 1);
    for (;;) {
        if (used == bytes.size()) bytes.resize(bytes.size() * 2 + 4096);
        const ssize_t got = read(file.Get(), bytes.data() + used, bytes.size() - used);
        if (got < 0) {
            if (errno == EINTR) continue;
            return tl::unexpected(ErrorFromErrno(errno, path));
        }
        used += static_cast<std::size_t>(got);
        // Less than there was room for is all of a file that has a size.
        if (got == 0 || (status.st_size > 0 && used < bytes.size())) break;
    }
    bytes.resize(used);
    return bytes;
}

bool IsFile(const Path& path) {
    // Opened without waiting, so that a pipe without a writer answers at once.
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    return file && fstat(file.Get(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool IsMissing(const Path& path) {
    struct stat status {};
    return stat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

Result<Path> FollowLinks(const Path& start) {
    Path path = start;
    for (int links = 0; links < 40; ++links) {
        struct stat status {};
        if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
        std::error_code error;
        const Path target = std::filesystem::read_symlink(path, error);
        if (error) return tl::unexpected(ErrorFromErrno(error.value(), path));
        path = target.is_absolute() ? target : path.parent_path() / target;
    }
    return tl::unexpected(ErrorFromErrno(ELOOP, start));
}

bool IsFolder(const Path& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool MakeFolder(const Path& path) {
    if (IsFolder(path)) return true;
    std::error_code error;
    std::filesystem::create_directories(path, error);
    return IsFolder(path);
}

std::vector<FolderEntry> FolderEntries(const Path& folder) {
    std::vector<FolderEntry> entries;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    while (!error && entry != std::filesystem::directory_iterator()) {
        std::error_code dangling_link;
        entries.push_back(
            {TextFromPath(entry->path().filename()), entry->is_directory(dangling_link)});
        entry.increment(error);
    }
    return entries;
}

Result<void> DeleteOneFile(const Path& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) return tl::unexpected(ErrorFromErrno(errno, path));
    if (S_ISDIR(status.st_mode)) return tl::unexpected(ErrorFromErrno(EISDIR, path));
    if (S_ISREG(status.st_mode) && (status.st_mode & S_IWUSR) == 0) {
        return tl::unexpected(Error{L"the file is read-only", path});
    }
    if (unlink(path.c_str()) != 0) return tl::unexpected(ErrorFromErrno(errno, path));
    return {};
}

}  // namespace wordhawk
