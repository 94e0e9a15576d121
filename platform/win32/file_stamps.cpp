#include "platform/file_stamps.h"

#include "platform/text.h"
#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::uint64_t Joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

FileStamp StampFrom(DWORD size_high, DWORD size_low, FILETIME time) {
    return {Joined(size_high, size_low), Joined(time.dwHighDateTime, time.dwLowDateTime), 0};
}

}  // namespace

FileStamp StampOf(const Path& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(SystemPath(path).c_str(), GetFileExInfoStandard, &data)) return {};
    return StampFrom(data.nFileSizeHigh, data.nFileSizeLow, data.ftLastWriteTime);
}

std::vector<StampedName> StampedFiles(const Path& folder, std::wstring_view extension) {
    std::vector<StampedName> files;
    WIN32_FIND_DATAW data{};
    const FindHandle search(FindFirstFileExW(SystemPath(folder / L"*").c_str(), FindExInfoBasic,
                                             &data, FindExSearchNameMatch, nullptr,
                                             FIND_FIRST_EX_LARGE_FETCH));
    if (!search) return files;
    do {
        std::wstring name = data.cFileName;
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ||
            !Lower(name).ends_with(extension))
            continue;
        files.push_back({std::move(name),
                         StampFrom(data.nFileSizeHigh, data.nFileSizeLow, data.ftLastWriteTime)});
    } while (FindNextFileW(search.Get(), &data));
    std::sort(files.begin(), files.end(),
              [](const StampedName& a, const StampedName& b) { return a.name < b.name; });
    return files;
}

}  // namespace wordhawk
