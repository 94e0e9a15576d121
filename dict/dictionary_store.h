#pragma once

#include "app/modRegs.h"
#include "app/program_state.h"
#include "dict/dictionary_file.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wordhawk {

/// Which dictionaries a lookup may consult.
enum class Scope { MainOnly, MainAndCustom };

/// The dictionaries in memory: main files cached for the life of the process as they are first
/// needed, custom files in the order of the list. Words are looked up lower-cased; the code page is
/// `state.CodePage`. One thread.
class DictionaryStore {
  public:
    /// Both objects must outlive the store; their folders, names and page may change in between.
    DictionaryStore(ProgramState& state, Settings& settings);

    /// Whether the word is in the main dictionary or, unless MainOnly, in a custom one.
    bool IsWordInDictionaries(std::wstring_view word, Scope scope);
    bool IsWordInCustomDictionaries(std::wstring_view word);

    /// The main file for lower-cased words that begin with these two ANSI bytes (equal bytes for a
    /// one-letter word), opened when first asked for. Only for first characters within the page.
    const DictionaryFile& MainFileOfBytes(unsigned char first, unsigned char second) {
        const DictionaryFile* file = by_first_bytes_[first] ? (*by_first_bytes_[first])[second] : nullptr;
        return file != nullptr && folder_in_table_ == state_.LanguageDictFolder
                   ? *file
                   : OpenMainFileOfBytes(first, second);
    }

    /// The main file that may hold `lower_word`; null when it does not exist on disk.
    const DictionaryFile* MainFileFor(std::wstring_view lower_word);
    Path MainPathFor(std::wstring_view lower_word) const;

    std::size_t CustomCount() const;
    /// The i-th active custom dictionary; null when its file does not exist.
    const DictionaryFile* CustomFile(std::size_t i);
    Path CustomPath(std::wstring_view name) const;
    /// The dictionary that Add writes to; an empty setting becomes CUSTOM.DIC first.
    Path ActiveCustomPath();

    /// Drops every custom dictionary's bytes and reads the files again.
    void ReloadCustomDictionaries();
    /// Reads one file again if it is cached (main) or listed (custom): called after it was rewritten.
    void ReloadFile(const Path& path);

    ProgramState& State() { return state_; }
    Settings& CurrentSettings() { return settings_; }
    const AnsiCodePage& Page() const { return *state_.CodePage; }

  private:
    struct Loaded {
        DictionaryFile file;
        bool exists = false;
    };
    using Row = std::array<const DictionaryFile*, 256>;

    const DictionaryFile& OpenMainFileOfBytes(unsigned char first, unsigned char second);
    Loaded& LoadMain(const Path& path);
    void SyncCustomSet();

    ProgramState& state_;
    Settings& settings_;
    std::unordered_map<std::wstring, std::unique_ptr<Loaded>> main_;
    std::array<std::unique_ptr<Row>, 256> by_first_bytes_;
    Path folder_in_table_;
    struct Custom {
        std::wstring name;
        bool loaded = false;
        Loaded content;
    };
    std::vector<Custom> custom_;
};

}  // namespace wordhawk
