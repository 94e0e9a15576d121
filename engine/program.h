#pragma once

#include "app/delimiter_flags.h"
#include "app/modRegs.h"
#include "app/program_state.h"
#include "dict/dictionary_store.h"
#include "lang/modRcLangs.h"
#include "platform/ui_services.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wordhawk {

/// How a Program is to be set up.
struct ProgramOptions {
    /// Data folder; empty means the user's own.
    Path data_folder;
    /// Stands for the system's default locale number; 0 asks the system.
    int locale = 0;
    /// Started by the user (true) or for automation (false).
    bool program_mode = true;
    /// Copy shipped dictionaries and language files into folders that have none, and generate a
    /// missing language file.
    bool install_shipped = true;
    /// Of the language files every one, for a window that lets the user choose, or only that of the
    /// language in force.
    bool install_every_language = true;
    /// Folder of the shipped dictionaries; empty means "dictionaries" beside the program.
    Path shipped_dictionaries;
    /// Folder of the shipped language files; empty means "languages" beside the program.
    Path shipped_languages;
    /// Settings that have this value where the settings file does not name them.
    std::vector<std::pair<std::wstring, std::wstring>> setting_defaults;
    /// Settings and delimiter flags that hold for this run only.
    std::vector<std::pair<std::wstring, std::wstring>> setting_overrides;
    std::vector<std::pair<int, int>> flag_overrides;
};

/// The composition root: builds folders, settings, flags, language and dictionaries once, in their
/// order, and owns them. Everything else is handed references to its members.
class Program {
  public:
    Program(ProgramOptions options, UiServices& services);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    UiServices& ui;
    ProgramState state;
    DelimiterFlagStore flags;
    Settings settings;
    DictionaryStore dictionaries;
    /// Why the language in force has no dictionaries, when they are shipped but could not be
    /// copied.
    std::optional<Error> install_failure;

    /// Reads the settings and the custom dictionary list again, after a dialog changed them.
    void ReloadSettings();
    /// Chooses the language that setting "Language" now names, with its dictionaries, their code
    /// page and the delimiters in it; returns the locale number in force.
    std::wstring ChangeLanguage();

  private:
    void LoadSettings(const modSect::ProfileReader& file);
    /// The locale number that an override names; 0 without one.
    int OverridingLocale() const;
    void OverrideLanguage();
    void InstallLanguages(std::wstring_view chosen);
    void InstallDictionaries();
    void UseCodePageOfLanguage();
    modRcLangs::MissingFile LanguageFiles() const;

    ProgramOptions options_;
};

}  // namespace wordhawk
