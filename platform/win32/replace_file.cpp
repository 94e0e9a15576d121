#include "platform/replace_file.h"

#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

#include <algorithm>
#include <atomic>
#include <string>
#include <utility>

namespace wordhawk {
namespace {

/// The file that a symbolic link ends at; the path itself when it is none.
Path FollowLinks(const Path& path, DWORD attributes) {
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_REPARSE_POINT)) {
        return path;
    }
    const FileHandle file(CreateFileW(SystemPath(path).c_str(), 0,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file) return path;
    std::wstring target(32768, L'\0');
    const DWORD length = GetFinalPathNameByHandleW(
        file.Get(), target.data(), static_cast<DWORD>(target.size()), FILE_NAME_NORMALIZED);
    if (length == 0 || length >= target.size()) return path;
    target.resize(length);
    return target;
}

struct Temporary {
    std::wstring path;
    FileHandle file;
};

/// A fresh file beside `target`, its name short whatever the target is called. A crashed program
/// may have left one behind under the same process number, hence the tries.
Temporary MakeTemporaryBeside(const Path& target) {
    static std::atomic<unsigned> counter{0};
    for (int tries = 0;; ++tries) {
        const std::wstring name = L".wordhawk-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                                  std::to_wstring(++counter) + L".tmp";
        std::wstring path = SystemPath(target.parent_path() / name);
        FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
        if (file || GetLastError() != ERROR_FILE_EXISTS || tries == 100) {
            return {std::move(path), std::move(file)};
        }
    }
}

/// Writes everything and, if wanted, brings it to the disk; ERROR_SUCCESS or the first failure.
DWORD WriteAll(const FileHandle& file, std::string_view bytes, Durability durability) {
    while (!bytes.empty()) {
        constexpr std::size_t kLargestWrite = 1u << 30;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kLargestWrite));
        DWORD written = 0;
        if (!WriteFile(file.Get(), bytes.data(), wanted, &written, nullptr)) return GetLastError();
        bytes.remove_prefix(written);
    }
    if (durability == Durability::LeftToTheSystem) return ERROR_SUCCESS;
    return FlushFileBuffers(file.Get()) ? ERROR_SUCCESS : GetLastError();
}

/// Renames over the target. Readers, virus scanners and indexers open a file for moments, which
/// makes single tries fail.
DWORD RenameOver(const std::wstring& temporary, const std::wstring& target) {
    return RetryWhileInUse([&] {
        return MoveFileExW(temporary.c_str(), target.c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    });
}

}  // namespace

Result<void> ReplaceFileContents(const Path& path, std::string_view bytes, Durability durability) {
    const DWORD attributes = GetFileAttributesW(SystemPath(path).c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return tl::unexpected(Error{L"this is a folder, not a file", path});
    }
    const Path target = FollowLinks(path, attributes);
    const std::wstring target_text = SystemPath(target);
    const DWORD target_attributes = GetFileAttributesW(target_text.c_str());
    if (exists && (target_attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        return tl::unexpected(Error{L"the file is read-only", path});
    }

    auto [temporary, file] = MakeTemporaryBeside(target);
    if (!file) return tl::unexpected(ErrorFromCode(GetLastError(), path));
    DWORD failure = WriteAll(file, bytes, durability);
    file.Reset();
    if (failure == ERROR_SUCCESS && exists) {
        // Hidden and the like stay as they were; not worth failing for.
        constexpr DWORD kKept =
            FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
        SetFileAttributesW(temporary.c_str(), (target_attributes & kKept) | FILE_ATTRIBUTE_ARCHIVE);
    }
    if (failure == ERROR_SUCCESS) failure = RenameOver(temporary, target_text);
    if (failure != ERROR_SUCCESS) {
        DeleteFileW(temporary.c_str());
        return tl::unexpected(ErrorFromCode(failure, path));
    }
    return {};
}

}  // namespace wordhawk
