#pragma once

#include "platform/files.h"
#include "platform/modSect.h"
#include "platform/text.h"

#include <string>

namespace wordhawk {

/// What start-up finds out and the language choice changes; one object, made by the composition
/// root and passed by reference to whoever needs it.
struct ProgramState {
    bool InIDE = false;
    /// Started as a program (true) or for automation (false).
    bool ProgramMode = false;
    bool WindowMode = false;
    bool FoldersReady = false;

    /// No trailing separator.
    Path DataFolder;
    Path SettingsFile;
    /// Stands for the system's default locale; 0 asks the system.
    int LocaleOverride = 0;
    /// Current locale number in decimal, first the system's, then the interface language's.
    std::wstring LanguageId;
    /// "lang" and the locale number.
    std::wstring LanguageFileBase;
    /// Empty until the language is chosen: then only built-in texts are used.
    Path LanguageFile;
    Path LanguageDictFolder;
    /// Counts of the language's words that the program brought along; empty when it brought none.
    Path ShippedFrequencies;
    std::wstring HelpFile;

    /// The document named on the command line, cleaned; empty when none.
    std::wstring CommandFile;
    /// Characters that split words, in flag order.
    std::wstring Delimiters;
    /// The page of dictionaries and of texts in bytes: the language's own, else the system's.
    const AnsiCodePage* CodePage = &AnsiCodePage::Get(1252);
    /// The page of the settings, which no change of language changes.
    const AnsiCodePage* SystemPage = &AnsiCodePage::Get(1252);

    /// Set by a progress display's cancel, cleared when a check pass starts.
    bool CancelFlag = false;
    /// Asks Add All and import to stop; cleared when they start.
    bool StopFlag = false;

    /// The settings file, read and written in the system's page.
    modSect::ProfileFile SettingsProfile() const { return {SettingsFile, SystemPage}; }
    Path CustomFolder() const { return DataFolder / "Dictionarys" / "Custom"; }
    Path ResourcesFolder() const { return DataFolder / "Resources"; }
    Path SoundsFolder() const { return DataFolder / "Sounds"; }
};

}  // namespace wordhawk
