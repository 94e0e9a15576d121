#pragma once

#include "platform/result.h"
#include "platform/win32/win.h"

#include <string>

namespace wordhawk {

/// What a system error code means for the file or folder at `where`, in plain English.
Error ErrorFromCode(DWORD code, const std::filesystem::path& where);

/// The path as the system's file calls take it: one too long for the classic limit becomes absolute
/// and gets the prefix that lifts the limit.
std::wstring SystemPath(const std::filesystem::path& path);

/// Calls `attempt` until it gives true, for about a second at most and only while its failures mean
/// that someone else has the file open. ERROR_SUCCESS or the code of the last failure.
template <class Attempt>
DWORD RetryWhileInUse(Attempt attempt) {
    for (DWORD pause = 1;; pause *= 2) {
        if (attempt()) return ERROR_SUCCESS;
        const DWORD failure = GetLastError();
        const bool in_use = failure == ERROR_SHARING_VIOLATION || failure == ERROR_ACCESS_DENIED ||
                            failure == ERROR_LOCK_VIOLATION;
        if (!in_use || pause > 512) return failure;
        Sleep(pause);
    }
}

}  // namespace wordhawk
