#include "platform/file_stamps.h"

#include "platform/text.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>

namespace wordhawk {
namespace {

FileStamp StampFrom(const struct stat& status) {
    constexpr std::uint64_t kNanoseconds = 1'000'000'000;
    return {static_cast<std::uint64_t>(status.st_size),
            static_cast<std::uint64_t>(status.st_mtim.tv_sec) * kNanoseconds +
                static_cast<std::uint64_t>(status.st_mtim.tv_nsec),
            static_cast<std::uint64_t>(status.st_ino)};
}

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

}  // namespace

FileStamp StampOf(const Path& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? StampFrom(status) : FileStamp{};
}

std::vector<StampedName> StampedFiles(const Path& folder, std::wstring_view extension) {
    std::vector<StampedName> files;
    const std::unique_ptr<DIR, CloseFolder> open(opendir(folder.c_str()));
    if (!open) return files;
    while (const dirent* const entry = readdir(open.get())) {
        std::wstring name = FromUtf8(entry->d_name);
        if (!Lower(name).ends_with(extension)) continue;
        struct stat status {};
        if (fstatat(dirfd(open.get()), entry->d_name, &status, 0) != 0 || !S_ISREG(status.st_mode))
            continue;
        files.push_back({std::move(name), StampFrom(status)});
    }
    std::sort(files.begin(), files.end(),
              [](const StampedName& a, const StampedName& b) { return a.name < b.name; });
    return files;
}

}  // namespace wordhawk
