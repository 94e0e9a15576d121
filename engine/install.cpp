#include "engine/install.h"

#include "dict/pack_update.h"
#include "engine/shipped_dictionaries.h"
#include "platform/single_writer.h"

#include <algorithm>
#include <string>
#include <system_error>

namespace wordhawk {
namespace {

namespace fs = std::filesystem;

bool HasDictionary(const Path& folder) {
    // Nearly every language has words that begin so; the list of a folder with hundreds of files
    // takes longer to get than all else at a start.
    if (!IsMissing(folder / "in_.dic")) return true;
    std::error_code failed;
    for (fs::directory_iterator at(folder, failed), end; !failed && at != end;
         at.increment(failed)) {
        if (at->path().extension() == ".dic") return true;
    }
    return false;
}

tl::unexpected<Error> NotInstalled(std::wstring_view reason, const Path& folder) {
    return tl::unexpected(Error{
        L"the language's dictionaries could not be installed: " + std::wstring(reason), folder});
}

}  // namespace

Result<bool> InstallShippedDictionaries(const ProgramState& state, const Path& shipped) {
    // The setting ends in a separator; the copy is made beside the folder itself.
    const Path target = state.LanguageDictFolder.has_filename()
                            ? state.LanguageDictFolder
                            : state.LanguageDictFolder.parent_path();
    const int pack = ShippedPackOf(NumberOrZero(state.LanguageId));
    const Path source = shipped / std::to_string(pack);
    if (HasDictionary(target)) {
        if (pack == 0 || !IsOtherPack(target, source)) return true;
        const Result<void> updated = UpdatePack(target, source);
        if (!updated) return tl::unexpected(updated.error());
        return true;
    }
    if (pack == 0 || !HasDictionary(source)) return false;

    const auto only_writer = SingleWriter::Acquire(target.parent_path());
    if (HasDictionary(target)) return true;
    if (!only_writer) return NotInstalled(only_writer.error().what, target);
    Path copy = target;
    copy += ".new";
    std::error_code failed;
    fs::remove_all(copy, failed);
    fs::copy(source, copy, failed);
    NoteSamePack(copy, source);
    if (failed) {
        const std::wstring reason = FromUtf8(failed.message());
        fs::remove_all(copy, failed);
        return NotInstalled(reason, target);
    }
    // The empty folder gives way to the finished one; other files in it are not ours to remove.
    fs::remove(target, failed);
    fs::rename(copy, target, failed);
    if (failed) {
        for (fs::directory_iterator at(copy, failed), end; !failed && at != end;
             at.increment(failed)) {
            fs::rename(at->path(), target / at->path().filename(), failed);
        }
        fs::remove_all(copy, failed);
    }
    if (!HasDictionary(target)) return NotInstalled(L"they cannot be moved there", target);
    return true;
}

bool InstallShippedSounds(const ProgramState& state, const Path& shipped) {
    const Path target = state.SoundsFolder();
    if (!ListFiles(target, L".wav").empty()) return true;
    bool any = false;
    for (const std::wstring& name : ListFiles(shipped, L".wav")) {
        std::error_code failed;
        any |= fs::copy_file(shipped / PathFromText(name), target / PathFromText(name),
                             fs::copy_options::skip_existing, failed);
    }
    return any;
}

}  // namespace wordhawk
