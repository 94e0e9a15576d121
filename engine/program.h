#pragma once

#include "app/delimiter_flags.h"
#include "app/modRegs.h"
#include "app/program_state.h"
#include "dict/dictionary_store.h"
#include "platform/ui_services.h"

#include <memory>
#include <string>
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
    /// Copy shipped dictionaries into a language folder that has none.
    bool install_dictionaries = true;
    /// Folder of the shipped dictionaries; empty means "dictionaries" beside the program.
    Path shipped_dictionaries;
    /// Settings and delimiter flags that hold for this run only.
    std::vector<std::pair<std::wstring, std::wstring>> setting_overrides;
    std::vector<std::pair<int, int>> flag_overrides;
};

/// The composition root: builds folders, settings, flags, language and dictionaries once, in their
/// order, and owns them. Everything else is handed references to its members.
class Program {
  public:
    Program(const ProgramOptions& options, UiServices& ui);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    ProgramState state;
    DelimiterFlagStore flags;
    Settings settings;
    DictionaryStore dictionaries;
    UiServices& ui;

    /// Reads settings and lists again after a dialog changed them.
    void ReloadSettings();
    /// Switches to the language that setting "Language" names now, and its dictionaries.
    std::wstring ChangeLanguage();

  private:
    void ApplyOverrides();

    ProgramOptions options_;
};

}  // namespace wordhawk
