#include "dict/change_file.h"

#include "dict/dictionary_file.h"
#include "platform/replace_file.h"
#include "platform/single_writer.h"

#include <filesystem>

namespace wordhawk {
namespace {

bool IsMissing(const Path& path) {
    std::error_code failed;
    return std::filesystem::status(path, failed).type() == std::filesystem::file_type::not_found;
}

Path FolderOf(const Path& path) { return path.has_parent_path() ? path.parent_path() : Path("."); }

}  // namespace

Result<bool> ChangeDictionaryFile(const Path& path, const FileEdit& edit) {
    if (IsFolder(path))
        return tl::unexpected(Error{L"a folder cannot be changed as a dictionary", path});
    const Path folder = FolderOf(path);
    if (!MakeFolder(folder))
        return tl::unexpected(Error{L"the dictionary's folder cannot be made", folder});
    const Result<SingleWriter> lock = SingleWriter::Acquire(folder);
    if (!lock) return tl::unexpected(lock.error());

    std::string bytes;
    if (!IsMissing(path)) {
        // Never taken for empty: writing would then throw away what could not be read.
        Result<std::string> read = ReadWholeFile(path);
        if (!read) return tl::unexpected(read.error());
        bytes = std::move(*read);
    }
    const std::optional<std::string> changed = edit(bytes);
    if (!changed) return false;
    const Result<void> replaced = ReplaceFileContents(path, *changed);
    if (!replaced) return tl::unexpected(replaced.error());
    return true;
}

Result<bool> RemoveEntryFromFile(const Path& path, std::string_view entry) {
    const FileEdit edit = [entry](std::string_view bytes) {
        return dictionary_edit::WithoutEntry(bytes, entry);
    };
    if (IsMissing(path) || IsFolder(path)) return false;
    // A first look without the lock: a dictionary that nobody may write can still be passed by.
    const Result<std::string> seen = ReadWholeFile(path);
    if (!seen) return tl::unexpected(seen.error());
    if (!edit(*seen)) return false;
    return ChangeDictionaryFile(path, edit);
}

}  // namespace wordhawk
