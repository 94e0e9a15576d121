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

Error LastError(const Path& path) { return ErrorFromCode(GetLastError(), path); }

}  // namespace

Path PathFromText(std::wstring_view text) { return Path(std::wstring(text)); }

std::wstring TextFromPath(const Path& path) { return path.native(); }

std::string PathForMessage(const Path& path) {
    Path shown = path;
    return ToUtf8(shown.make_preferred().native());
}

Result<std::string> ReadWholeFile(const Path& path) {
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
