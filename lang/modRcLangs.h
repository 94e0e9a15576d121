#pragma once

#include "app/program_state.h"
#include "platform/modSect.h"
#include "platform/ui_services.h"

#include <string>
#include <vector>

namespace wordhawk::modRcLangs {

/// Setting "Language".
std::wstring ChosenLanguage(const modSect::ProfileReader& settings);

/// The locale number that InitLanguage will try: what is chosen, else `state.LanguageId`, else
/// English.
int WantedLocale(const ProgramState& state, std::wstring_view chosen);

/// Whether a language file that is not there is generated from the built-in texts, or left missing:
/// the language then stays the chosen one, with the built-in texts.
enum class MissingFile { Generate, Leave };

/// Chooses the interface language from setting "Language", else from `state.LanguageId`; falls back
/// to 1033 when the language's file is missing and cannot be generated. Sets the language members
/// of `state`, stores the choice and returns the locale number in force.
std::wstring InitLanguage(ProgramState& state, UiServices& ui,
                          MissingFile missing = MissingFile::Generate);

/// The same where the setting has been read. It is stored only when another one is in force.
std::wstring InitLanguage(ProgramState& state, UiServices& ui, std::wstring_view chosen,
                          MissingFile missing);

/// Recomputes `state.LanguageFile` from data folder, LanguageId and LanguageFileBase.
void SetLanguageFilePath(ProgramState& state);

/// Sets `state.LanguageFileBase` for the locale and says whether its language file exists.
bool LanguageFileExists(ProgramState& state, std::wstring_view locale);

struct LanguageEntry {
    std::wstring name;
    int locale;
};

/// The installed interface languages: numeric folders that hold their language file.
std::vector<LanguageEntry> FillLanguageList(ProgramState& state);

}  // namespace wordhawk::modRcLangs
