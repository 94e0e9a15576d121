#include "platform/lock_file.h"

#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

#include <utility>

namespace wordhawk {
namespace {

/// Without FILE_SHARE_DELETE: nobody deletes the file while somebody works under its lock.
constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE;

bool InformationOf(HANDLE file, BY_HANDLE_FILE_INFORMATION& information) {
    return GetFileInformationByHandle(file, &information) != 0;
}

class WindowsLockFile final : public LockFile {
  public:
    WindowsLockFile(const Path& folder, FileHandle file)
        : folder_(folder), file_(std::move(file)) {}

    Result<bool> TryLock() override {
        OVERLAPPED from_the_start{};
        if (LockFileEx(file_.Get(), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                       &from_the_start)) {
            return true;
        }
        const DWORD failure = GetLastError();
        if (failure == ERROR_LOCK_VIOLATION || failure == ERROR_IO_PENDING) return false;
        return tl::unexpected(ErrorFromCode(failure, folder_));
    }

    bool IsInPlace() const override {
        // Under Wine a native program may have deleted it all the same; then no name is left.
        BY_HANDLE_FILE_INFORMATION mine{};
        return InformationOf(file_.Get(), mine) && mine.nNumberOfLinks > 0;
    }

  private:
    Path folder_;
    FileHandle file_;
};

}  // namespace

Result<std::unique_ptr<LockFile>> OpenLockFile(const Path& folder) {
    const std::wstring path = SystemPath(folder / L".wordhawk.lock");
    FileHandle file(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, kShared, nullptr,
                                OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_OPEN_REPARSE_POINT,
                                nullptr));
    if (!file) return tl::unexpected(ErrorFromCode(GetLastError(), folder));
    BY_HANDLE_FILE_INFORMATION information{};
    if (!InformationOf(file.Get(), information) ||
        (information.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        return tl::unexpected(Error{L"the lock file is a link; delete it and try again", folder});
    }
    return std::make_unique<WindowsLockFile>(folder, std::move(file));
}

}  // namespace wordhawk
