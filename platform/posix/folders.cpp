#include "platform/folders.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <system_error>

namespace wordhawk {
namespace {

Path AbsoluteFromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    Path path = value ? Path(value) : Path();
    return path.is_absolute() ? path : Path();
}

Path HomeFolder() {
    if (Path home = AbsoluteFromEnvironment("HOME"); !home.empty()) return home;
    std::array<char, 4096> buffer;
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return {};
    Path home = found->pw_dir;
    return home.is_absolute() ? home : Path();
}

}  // namespace

Path SpecialFolder(int number) {
    if (number != kApplicationDataFolder) return {};
    if (Path data = AbsoluteFromEnvironment("XDG_DATA_HOME"); !data.empty()) return data;
    const Path home = HomeFolder();
    return home.empty() ? Path() : home / ".local" / "share";
}

Path ProgramFile() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

Path ProgramFolder() { return ProgramFile().parent_path(); }

Path TemporaryFolder() {
    std::error_code error;
    const Path folder = std::filesystem::temp_directory_path(error);
    return error ? Path("/tmp") : folder;
}

}  // namespace wordhawk
