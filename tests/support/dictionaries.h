#pragma once

#include "app/modRegs.h"
#include "app/program_state.h"
#include "dict/dictionary_store.h"
#include "dict/phonetic_key.h"
#include "tests/support/temp_dir.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace wordhawk::test {

/// A data folder with dictionary files, and a store over it.
class Dictionaries {
  public:
    Dictionaries() : store(state, settings) {
        state.DataFolder = folder.Folder();
        state.SettingsFile = folder / L"Wordhawk.ini";
        state.LanguageId = L"1033";
        state.LanguageDictFolder = folder.Folder() / "Dictionarys" / "1033" / "";
        std::filesystem::create_directories(state.LanguageDictFolder);
        std::filesystem::create_directories(state.CustomFolder());
    }

    /// Writes sorted main files with the words' keys.
    void WriteMain(std::vector<std::wstring> words) {
        std::sort(words.begin(), words.end());
        std::map<Path, std::string> files;
        for (const std::wstring& word : words)
            files[store.MainPathFor(word)] += EntryLine(word, *state.CodePage);
        for (const auto& [path, bytes] : files) WriteBytes(path, bytes);
    }
    void WriteCustom(std::wstring_view name, std::string_view bytes) {
        WriteBytes(state.CustomFolder() / PathFromText(name), bytes);
    }

    TempDir folder;
    ProgramState state;
    Settings settings;
    DictionaryStore store;
};

}  // namespace wordhawk::test
