#include "app/prepare_folders.h"

#include "app/program_folders.h"
#include "app/version.h"
#include "platform/locale_ids.h"

namespace wordhawk {

Path ComputeDataFolder(const Path& program_folder) {
    if (Path portable = PortableDataFolder(program_folder); !portable.empty()) return portable;
    const Path application_data = SpecialFolder(kApplicationDataFolder);
    if (application_data.empty()) return {};
    return application_data / WORDHAWK_COMPANY / WORDHAWK_PRODUCT;
}

void PrepareFolders(ProgramState& state) {
    const int locale = state.LocaleOverride != 0 ? state.LocaleOverride : SystemDefaultLocale();
    state.LanguageId = std::to_wstring(locale);
    if (state.DataFolder.empty()) state.DataFolder = ComputeDataFolder();
    // Where no folder is known, nothing is made: least of all in the folder that happens to be the
    // current one.
    if (state.DataFolder.empty()) return;
    state.SettingsFile = state.DataFolder / "Wordhawk.ini";

    const Path dictionaries = state.DataFolder / "Dictionarys";
    const Path resources = state.ResourcesFolder();
    const Path language = PathFromText(state.LanguageId);
    const Path english = "1033";
    for (const Path& folder : {state.CustomFolder(), dictionaries / english, resources / english,
                               state.DataFolder / "Sounds", state.DataFolder / "Saves"}) {
        MakeFolder(folder);
    }
    if (language != english) {
        MakeFolder(dictionaries / language);
        MakeFolder(resources / language);
    }
    state.LanguageDictFolder = dictionaries / language;
    // The interface language is chosen by the caller, since its texts are a layer above this one.
    state.FoldersReady = true;
}

}  // namespace wordhawk
