#include "dict/change_file.h"

#include "dict/dictionary_file.h"
#include "platform/replace_file.h"
#include "platform/single_writer.h"

namespace wordhawk {
namespace {

Path FolderOf(const Path& path) { return path.has_parent_path() ? path.parent_path() : Path("."); }

}  // namespace

Result<bool> ChangeDictionaryFile(const Path& path, const FileEdit& edit) {
    if (IsFolder(path))
        return tl::unexpected(Error{L"a folder cannot be changed as a dictionary", path});
    const Path folder = FolderOf(path);
    if (!MakeFolder(folder))
        return tl::unexpected(Error{L"the dictionary's folder cannot be made", folder});
    const Result<LockedFile> locked = LockForChange(path);
    if (!locked) return tl::unexpected(locked.error());
    // Named as the caller knows it, wherever links lead.
    const auto failed = [&](const Error& error) { return tl::unexpected(Error{error.what, path}); };

    std::string bytes;
    if (!IsMissing(locked->path)) {
        // Never taken for empty: writing would then throw away what could not be read.
        Result<std::string> read = ReadWholeFile(locked->path);
        if (!read) return failed(read.error());
        bytes = std::move(*read);
    }
    const std::optional<std::string> changed = edit(bytes);
    if (!changed) return false;
    const Result<void> replaced = ReplaceFileContents(locked->path, *changed);
    if (!replaced) return failed(replaced.error());
    return true;
}

Result<bool> FileHoldsEntry(const Path& path, std::string_view entry) {
    if (IsMissing(path) || IsFolder(path)) return false;
    const Result<std::string> bytes = ReadWholeFile(path);
    if (!bytes) return tl::unexpected(bytes.error());
    return dictionary_edit::WithoutEntry(*bytes, entry).has_value();
}

Result<bool> RemoveEntryFromFile(const Path& path, std::string_view entry) {
    // A first look without the lock: a dictionary that nobody may write can still be passed by.
    const Result<bool> holds = FileHoldsEntry(path, entry);
    if (!holds.value_or(false)) return holds;
    return ChangeDictionaryFile(path, [entry](std::string_view bytes) {
        return dictionary_edit::WithoutEntry(bytes, entry);
    });
}

}  // namespace wordhawk
