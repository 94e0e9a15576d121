#include "engine/program.h"

#include "app/prepare_folders.h"
#include "app/program_folders.h"
#include "dict/code_page_file.h"
#include "engine/install.h"
#include "engine/install_languages.h"
#include "engine/shipped_dictionaries.h"
#include "engine/suggest/image_file.h"
#include "platform/cIsInIDE.h"
#include "platform/folders.h"
#include "platform/locale_ids.h"
#include "platform/modSect.h"

#include <algorithm>

namespace wordhawk {

Program::Program(ProgramOptions options, UiServices& services)
    : ui(services), dictionaries(state, settings), options_(std::move(options)) {
    dictionaries.SetMainTableSource(MainTableFromImage);
    state.InIDE = cIsInIDE().IsInIDE();
    state.DataFolder = options_.data_folder;
    state.LocaleOverride = options_.locale;
    const int locale = options_.locale != 0 ? options_.locale : SystemDefaultLocale();
    // A locale that was asked for brings its own page, so that results do not hang on the machine.
    state.SystemPage = &AnsiCodePage::Get(options_.locale != 0 ? AnsiPageOfLocale(locale)
                                                               : SystemAnsiPage(locale));
    state.CodePage = state.SystemPage;

    PrepareFolders(state);
    // Whoever made this says so and ends; what follows would go into the current folder.
    if (!state.FoldersReady) return;
    const Path program_folder = ProgramFolder();
    if (options_.shipped_languages.empty())
        options_.shipped_languages = ShippedFolder(program_folder, "languages");
    if (options_.shipped_dictionaries.empty())
        options_.shipped_dictionaries = ShippedFolder(program_folder, "dictionaries");
    std::optional<modSect::ProfileReader> settings_file(state.SettingsProfile());
    const std::wstring chosen = modRcLangs::ChosenLanguage(*settings_file);
    InstallLanguages(chosen);
    if (modRcLangs::InitLanguage(state, ui, chosen, LanguageFiles()) != chosen)
        settings_file.emplace(state.SettingsProfile());
    OverrideLanguage();
    InstallDictionaries();

    flags.Load(state.SettingsFile, *settings_file);
    for (const auto& [index, value] : options_.flag_overrides) flags.Set(index, value);
    UseCodePageOfLanguage();

    state.ProgramMode = options_.program_mode;
    state.WindowMode = options_.program_mode;
    LoadSettings(*settings_file);
}

void Program::ReloadSettings() { LoadSettings(modSect::ProfileReader(state.SettingsProfile())); }

void Program::LoadSettings(const modSect::ProfileReader& file) {
    settings = modRegs::LoadSettings(state, file, options_.setting_defaults);
    for (const auto& [key, value] : options_.setting_overrides) {
        if (const modRegs::SettingRow* row = modRegs::FindRow(key)) row->assign(settings, value);
    }
}

std::wstring Program::ChangeLanguage() {
    std::wstring in_force = modRcLangs::InitLanguage(state, ui, LanguageFiles());
    InstallDictionaries();
    UseCodePageOfLanguage();
    return in_force;
}

void Program::UseCodePageOfLanguage() {
    const AnsiCodePage* const own = CodePageOfFolder(state.LanguageDictFolder);
    state.CodePage = own != nullptr ? own : state.SystemPage;
    state.Delimiters = BuildDelimiters(flags, *state.CodePage);
}

modRcLangs::MissingFile Program::LanguageFiles() const {
    return options_.install_shipped ? modRcLangs::MissingFile::Generate
                                    : modRcLangs::MissingFile::Leave;
}

int Program::OverridingLocale() const {
    int locale = 0;
    for (const auto& [key, value] : options_.setting_overrides) {
        const int number = EqualIgnoringCase(key, L"Language") ? NumberOrZero(value) : 0;
        if (number > 0) locale = number;
    }
    return locale;
}

void Program::OverrideLanguage() {
    const int locale = OverridingLocale();
    if (locale == 0) return;
    state.LanguageId = std::to_wstring(locale);
    modRcLangs::LanguageFileExists(state, state.LanguageId);
    modRcLangs::SetLanguageFilePath(state);
    state.LanguageDictFolder =
        state.DataFolder / "Dictionarys" / PathFromText(state.LanguageId) / "";
}

void Program::InstallLanguages(std::wstring_view chosen) {
    if (!options_.install_shipped) return;
    const Path& shipped = options_.shipped_languages;
    if (options_.install_every_language) InstallShippedLanguages(state, shipped);
    InstallShippedLanguage(state, shipped, modRcLangs::WantedLocale(state, chosen));
    if (const int locale = OverridingLocale()) InstallShippedLanguage(state, shipped, locale);
}

void Program::InstallDictionaries() {
    const Path& shipped = options_.shipped_dictionaries;
    const int pack = ShippedPackOf(NumberOrZero(state.LanguageId));
    state.ShippedFrequencies =
        pack != 0 ? shipped / std::to_string(pack) / "frequencies.txt" : Path();
    if (!options_.install_shipped) return;
    const Result<bool> installed = InstallShippedDictionaries(state, shipped);
    install_failure = installed ? std::nullopt : std::optional(installed.error());
}

}  // namespace wordhawk
