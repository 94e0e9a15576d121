#include "platform/files.h"

#include "platform/folder_entries.h"
#include "platform/text.h"
#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

#include <algorithm>

namespace wordhawk {
namespace {

DWORD AttributesOf(const Path& path) { return GetFileAttributesW(SystemPath(path).c_str()); }

FileHandle OpenToRead(const Path& path) {
    return FileHandle(CreateFileW(SystemPath(path).c_str(), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
}

/// Where a file or folder really lies, links on the way resolved; empty when it cannot be opened.
Path FinalPath(const Path& path) {
    const FileHandle file(CreateFileW(SystemPath(path).c_str(), 0,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!file) return {};
    std::wstring target(32768, L'\0');
    const DWORD length = GetFinalPathNameByHandleW(
        file.Get(), target.data(), static_cast<DWORD>(target.size()), FILE_NAME_NORMALIZED);
    if (length == 0 || length >= target.size()) return {};
    target.resize(length);
    return target;
}

Error LastError(const Path& path) { return ErrorFromCode(GetLastError(), path); }

}  // namespace

Path PathFromText(std::wstring_view text) { return Path(std::wstring(text)); }

std::wstring TextFromPath(const Path& path) { return path.native(); }

std::string PathForMessage(const Path& path) {
    std::wstring shown = Path(path).make_preferred().native();
    // The prefix of resolved and of very long paths means nothing to people.
    if (shown.starts_with(LR"(\\?\UNC\)")) {
        shown.replace(0, 7, L"\\");
    } else if (shown.starts_with(LR"(\\?\)")) {
        shown.erase(0, 4);
    }
    return ToUtf8(shown);
}

Result<std::string> ReadWholeFile(const Path& path, Accepted accepted) {
    // A check opens hundreds of small files, so what is rarely needed is asked only after a
    // failure.
    FileHandle file = OpenToRead(path);
    if (!file) {
        if (IsFolder(path)) return tl::unexpected(Error{L"this is a folder, not a file", path});
        const DWORD failure = RetryWhileInUse([&] {
            file = OpenToRead(path);
            return static_cast<bool>(file);
        });
        if (failure != ERROR_SUCCESS) return tl::unexpected(ErrorFromCode(failure, path));
    }
    if (accepted == Accepted::RegularFiles && GetFileType(file.Get()) != FILE_TYPE_DISK)
        return tl::unexpected(Error{L"this is a pipe or a device, not a file", path});
    // The size is only a first guess: pipes have none and a file may grow meanwhile.
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.Get(), &size)) size.QuadPart = 0;
    std::string bytes;
    std::size_t used = 0;
    bytes.resize(static_cast<std::size_t>(size.QuadPart) + 1);
    for (;;) {
        if (used == bytes.size()) bytes.resize(bytes.size() * 2 + 4096);
        constexpr std::size_t kLargestRead = 1u << 30;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size() - used, kLargestRead));
        DWORD got = 0;
        if (!ReadFile(file.Get(), bytes.data() + used, wanted, &got, nullptr)) {
            if (GetLastError() == ERROR_BROKEN_PIPE) break;
            return tl::unexpected(LastError(path));
        }
        used += got;
        // Less than there was room for is all of a file that has a size.
        if (got == 0 || (size.QuadPart > 0 && got < wanted)) break;
    }
    bytes.resize(used);
    return bytes;
}

bool IsFile(const Path& path) { return static_cast<bool>(OpenToRead(path)); }

bool IsMissing(const Path& path) {
    if (AttributesOf(path) != INVALID_FILE_ATTRIBUTES) return false;
    const DWORD failure = GetLastError();
    return failure == ERROR_FILE_NOT_FOUND || failure == ERROR_PATH_NOT_FOUND;
}

Result<Path> FollowLinks(const Path& path) {
    const Path end = FinalPath(path);
    if (end.empty()) return path;
    // An ordinary file keeps the name by which it was asked for.
    const Path parent = FinalPath(path.has_parent_path() ? path.parent_path() : Path(L"."));
    const bool is_link = !EqualIgnoringCase((parent / path.filename()).native(), end.native());
    return is_link ? end : path;
}

bool IsFolder(const Path& path) {
    const DWORD attributes = AttributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool MakeFolder(const Path& path) {
    if (path.empty()) return false;
    if (IsFolder(path)) return true;
    const Path parent = path.parent_path();
    if (parent != path && !parent.empty() && !MakeFolder(parent)) return false;
    CreateDirectoryW(SystemPath(path).c_str(), nullptr);
    return IsFolder(path);
}

std::vector<FolderEntry> FolderEntries(const Path& folder) {
    std::vector<FolderEntry> entries;
    WIN32_FIND_DATAW found{};
    const FindHandle search(FindFirstFileW(SystemPath(folder / L"*").c_str(), &found));
    if (!search) return entries;
    do {
        std::wstring name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        entries.push_back(
            {std::move(name), (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
    } while (FindNextFileW(search.Get(), &found));
    return entries;
}

Result<void> DeleteOneFile(const Path& path) {
    const DWORD attributes = AttributesOf(path);
    if (attributes == INVALID_FILE_ATTRIBUTES) return tl::unexpected(LastError(path));
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return tl::unexpected(Error{L"this is a folder, not a file", path});
    }
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        return tl::unexpected(Error{L"the file is read-only", path});
    }
    if (!DeleteFileW(SystemPath(path).c_str())) return tl::unexpected(LastError(path));
    return {};
}

}  // namespace wordhawk
