#include "platform/replace_file.h"

#include "platform/temporary_name.h"
#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

#include <algorithm>
#include <string>
#include <utility>

namespace wordhawk {
namespace {

struct Temporary {
    std::wstring path;
    FileHandle file;
};

/// A fresh file beside `target`. Names that are taken are as good as impossible, hence few tries.
Temporary MakeTemporaryBeside(const Path& target) {
    for (int tries = 0;; ++tries) {
        std::wstring path = SystemPath(target.parent_path() / TemporaryName());
        FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
        if (file || GetLastError() != ERROR_FILE_EXISTS || tries == 10) {
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
    const Path target = FollowLinks(path).value_or(path);
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

void SweepTemporaries(const Path& folder) {
    WIN32_FIND_DATAW found{};
    const FindHandle search(
        FindFirstFileW(SystemPath(folder / L".wordhawk-*.tmp").c_str(), &found));
    if (!search) return;
    do {
        if (!IsTemporaryName(found.cFileName)) continue;
        // Refused while somebody has the file open.
        const FileHandle alone(CreateFileW(
            SystemPath(folder / found.cFileName).c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
            FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    } while (FindNextFileW(search.Get(), &found));
}

}  // namespace wordhawk
