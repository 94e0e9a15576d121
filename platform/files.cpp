#include "platform/files.h"

#include "platform/folder_entries.h"
#include "platform/text.h"

#include <algorithm>
#include <utility>

namespace wordhawk {
namespace {

enum class Wanted { Files, Folders };

bool EndsWith(std::wstring_view name, std::wstring_view ending) {
    return name.size() >= ending.size() &&
           EqualIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

/// Names in `folder`, ascending by their upper-cased form.
std::vector<std::wstring> ListNames(const Path& folder, Wanted wanted, std::wstring_view ending) {
    std::vector<std::pair<std::wstring, std::wstring>> names;
    for (FolderEntry& entry : FolderEntries(folder)) {
        if (entry.is_folder != (wanted == Wanted::Folders) || !EndsWith(entry.name, ending))
            continue;
        std::wstring upper = Upper(entry.name);
        names.emplace_back(std::move(upper), std::move(entry.name));
    }
    std::sort(names.begin(), names.end());
    std::vector<std::wstring> result;
    result.reserve(names.size());
    for (auto& [upper, name] : names) result.push_back(std::move(name));
    return result;
}

}  // namespace

std::vector<std::wstring> ListFiles(const Path& folder, std::wstring_view extension) {
    return ListNames(folder, Wanted::Files, extension);
}

std::vector<std::wstring> ListFolders(const Path& folder) {
    return ListNames(folder, Wanted::Folders, {});
}

}  // namespace wordhawk
