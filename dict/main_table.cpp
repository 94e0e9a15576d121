#include "dict/main_table.h"

#include "platform/text.h"

#include <algorithm>

namespace wordhawk {

bool MainTable::SpeaksFor(const Path& file) const {
    const std::wstring name = TextFromPath(file.filename());
    const auto known = std::lower_bound(
        files.begin(), files.end(), name,
        [](const File& one, const std::wstring& wanted) { return one.name < wanted; });
    const FileStamp stamp = StampOf(file);
    // The words of a file that is not there are none.
    if (known == files.end() || known->name != name) return stamp == FileStamp{};
    // A file without any may be one that could not be read, of which the user is to be told.
    return known->has_words && known->stamp == stamp;
}

}  // namespace wordhawk
