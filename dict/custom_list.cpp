#include "dict/custom_list.h"

#include "dict/change_file.h"
#include "dict/dictionary_names.h"
#include "platform/text.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::wstring_view kDefaultName = L"CUSTOM.DIC";

}  // namespace

std::vector<std::wstring> CustomDictionaryFiles(const ProgramState& state) {
    std::vector<std::wstring> names = ListFiles(state.CustomFolder(), L".dic");
    for (std::wstring& name : names) name = Upper(name);
    return names;
}

NameProblem CheckNewDictionaryName(const ProgramState& state, std::wstring_view name) {
    const Result<std::wstring> full = CustomDictionaryName(name);
    if (!full) return NameProblem::NotAName;
    const auto in_page = [&](wchar_t c) { return state.CodePage->ToByteOrNone(c) >= 0; };
    // In upper case too: so it is listed and stored.
    const std::wstring upper = Upper(*full);
    if (!std::all_of(full->begin(), full->end(), in_page) ||
        !std::all_of(upper.begin(), upper.end(), in_page)) {
        return NameProblem::NotStorable;
    }
    const std::vector<std::wstring> taken = CustomDictionaryFiles(state);
    const bool known = std::any_of(taken.begin(), taken.end(), [&](const std::wstring& other) {
        return EqualIgnoringCase(other, *full);
    });
    return known || IsFile(state.CustomFolder() / PathFromText(*full)) ? NameProblem::Taken
                                                                       : NameProblem::None;
}

Result<std::wstring> CreateCustomDictionary(const ProgramState& state, Settings& settings,
                                            std::wstring_view name) {
    Result<std::wstring> full = CustomDictionaryName(name);
    if (!full) return full;
    const Path file = state.CustomFolder() / PathFromText(*full);
    const Result<bool> made =
        ChangeDictionaryFile(file, [](std::string_view bytes) -> std::optional<std::string> {
            // Another copy may have been quicker, and may have put words into it.
            if (!bytes.empty()) return std::nullopt;
            return std::string();
        });
    if (!made) return tl::unexpected(made.error());
    settings.CustomDic = *full;
    modRegs::SaveSetting(state, settings, L"CustomDic");
    return full;
}

Result<void> DeleteCustomDictionary(const ProgramState& state, std::wstring_view name) {
    if (!IsPlainFileName(name))
        return tl::unexpected(Error{L"this is no name of a dictionary", {}});
    return DeleteOneFile(state.CustomFolder() / PathFromText(name));
}

bool StoreActiveDictionaries(const ProgramState& state, Settings& settings,
                             std::span<const std::wstring> names) {
    settings.CustomDictionaries.assign(names.begin(), names.end());
    bool written = modRegs::SaveCustomDictionaryList(state, names);
    if (names.empty()) {
        settings.CustomDictionaries = {std::wstring(kDefaultName)};
        settings.CustomDic = kDefaultName;
        written &= modRegs::SaveSetting(state, settings, L"CustomDic");
    }
    return written;
}

}  // namespace wordhawk
