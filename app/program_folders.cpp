#include "app/program_folders.h"

namespace wordhawk {

Path PortableDataFolder(const Path& program_folder) {
    return IsFile(program_folder / "portable.ini") ? program_folder / "Data" : Path();
}

Path ShippedFolder(const Path& program_folder, std::string_view name) {
    Path beside = program_folder / name;
    if (IsFolder(beside)) return beside;
    const Path shared = program_folder.parent_path() / "share" / "wordhawk" / name;
    return IsFolder(shared) ? shared : beside;
}

}  // namespace wordhawk
