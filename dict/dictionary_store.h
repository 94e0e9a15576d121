#pragma once

#include "app/modRegs.h"
#include "app/program_state.h"
#include "dict/dictionary_file.h"
#include "dict/forbidden_words.h"
#include "dict/main_table.h"
#include "dict/pack_extras.h"

#include <array>
#include <bitset>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wordhawk {

/// Which dictionaries a lookup may consult.
enum class Scope { MainOnly, MainAndCustom };

/// The dictionaries in memory: main files cached for the life of the process as they are first
/// needed, custom files in the order of the list. Words are looked up lower-cased; the code page is
/// `state.CodePage`. A missing file is cached too, as an empty one; so is one that is there but
/// cannot be read, which Unreadable tells of. One thread.
class DictionaryStore {
  public:
    /// Both objects must outlive the store; their folders, names and page may change in between.
    DictionaryStore(ProgramState& state, Settings& settings);
    DictionaryStore(const DictionaryStore&) = delete;
    DictionaryStore& operator=(const DictionaryStore&) = delete;

    /// Whom to ask for a table of the main dictionary's words. It is asked once in a language, when
    /// a text has needed so many files that a table is the shorter way, and answers for those of
    /// the others that have not changed.
    void SetMainTableSource(MainTableSource source) { table_source_ = std::move(source); }

    /// Whether the word is in the main dictionary or, unless MainOnly, in a custom one. Pieces of
    /// the main dictionary's words count unless letters and apostrophes stay in their words
    /// (settings LettersStay, StraightApostrophe), compounds of them where setting Compounds says
    /// so; of these some only with a capital.
    bool IsWordInDictionaries(std::wstring_view word, Scope scope);
    bool IsWordInCustomDictionaries(std::wstring_view word);

    /// Notices that the language folder or the page changed. Every other call does so by itself;
    /// callers of MainFileOfBytes do it once before a pass.
    void SyncWithState();

    /// The main file for lower-cased words that begin with these two ANSI bytes (equal bytes for a
    /// one-letter word), opened when first asked for. Only for first characters within the page.
    /// The file stays where it is for the life of the store; ReloadFile changes what it holds.
    const DictionaryFile& MainFileOfBytes(unsigned char first, unsigned char second) {
        const Row* const row = by_first_bytes_[first].get();
        const DictionaryFile* const file = row != nullptr ? (*row)[second] : nullptr;
        return file != nullptr ? *file : OpenMainFileOfBytes(first, second);
    }

    /// Whether the main dictionary holds the lower-cased bytes of a word: at least two, no comma,
    /// CR or LF among them. As MainFileOfBytes, but the first words of all are looked for in their
    /// files, which a short text is not worth reading.
    bool IsInMain(std::string_view lower_bytes) {
        if (looks_left_ > 0 && StandsInUnreadFile(lower_bytes)) return true;
        return IsInFileOrTable(lower_bytes, DictionaryFile::HashBytes(lower_bytes));
    }

    /// The main file that may hold `lower_word`; null when it does not exist on disk.
    const DictionaryFile* MainFileFor(std::wstring_view lower_word);
    Path MainPathFor(std::wstring_view lower_word) const;

    std::size_t CustomCount();
    /// The i-th active custom dictionary; null when its file does not exist. Valid until the list
    /// changes.
    const DictionaryFile* CustomFile(std::size_t i);
    /// The path of a custom dictionary: always within the custom folder. A name that is none (see
    /// CustomDictionaryName) gives the folder itself, which no file can be read from or written to.
    Path CustomPath(std::wstring_view name) const;
    /// The i-th name of the list.
    const std::wstring& CustomName(std::size_t i);
    /// The dictionary that Add writes to; an empty setting becomes CUSTOM.DIC first.
    Path ActiveCustomPath();

    /// The words that are always flagged; read when first asked for. The object stays where it is.
    const ForbiddenWords& Forbidden();
    Path ForbiddenPath() const { return state_.CustomFolder() / ForbiddenWords::kFileName; }

    /// Drops every custom dictionary's bytes, the forbidden words too, and reads the files again.
    void ReloadCustomDictionaries();
    /// Reads one file again if it is cached (main) or listed (custom): called after it was
    /// rewritten.
    void ReloadFile(const Path& path);

    /// The files that are there but could not be read, each once, in the order met: their words
    /// count as unknown, so whoever shows results must say so.
    const std::vector<Error>& Unreadable() const { return unreadable_; }

    ProgramState& State() { return state_; }
    Settings& CurrentSettings() { return settings_; }
    const AnsiCodePage& Page() const { return *state_.CodePage; }

  private:
    struct Loaded {
        DictionaryFile file;
        bool exists = false;
        Path path;
    };
    struct Custom {
        std::wstring name;
        bool is_loaded = false;
        Loaded content;
    };
    using Row = std::array<const DictionaryFile*, 256>;
    /// Bringing a table into memory takes about as long as opening so many files.
    static constexpr int kOpensBeforeTable = 64;

    bool IsInFileOrTable(std::string_view lower_bytes, std::uint32_t hash) {
        const auto first = static_cast<unsigned char>(lower_bytes[0]);
        const auto second = static_cast<unsigned char>(lower_bytes[1]);
        if (IsTabled(first, second)) {
            if (table_->Holds(lower_bytes, hash)) return true;
            if (FitsTable(lower_bytes, Page())) return false;
        }
        return MainFileOfBytes(first, second)
            .ContainsHashed(lower_bytes, hash, EntryForms::KeyedOnly);
    }
    /// Whether the table answers for the words that begin so; decided at the first of them.
    bool IsTabled(unsigned char first, unsigned char second) {
        if (tabled_[PairOf(first, second)]) return true;
        const Row* const row = by_first_bytes_[first].get();
        if (row != nullptr && (*row)[second] != nullptr) return false;
        return TakeFromTable(first, second);
    }
    static std::size_t PairOf(unsigned char first, unsigned char second) {
        return static_cast<std::size_t>(first) << 8 | second;
    }
    bool TakeFromTable(unsigned char first, unsigned char second);

    const DictionaryFile& OpenMainFileOfBytes(unsigned char first, unsigned char second);
    Path MainPathOfBytes(unsigned char first, unsigned char second) const;
    bool StandsInUnreadFile(std::string_view lower_bytes);
    Loaded Read(Path path);
    Loaded& LoadMain(const Path& path);
    /// The word in lower_bytes_, whose first character this is.
    bool IsInMainFiles(wchar_t initial);
    void SyncCustomSet();
    Loaded& LoadCustom(Custom& custom);
    bool IsInCustomFiles(std::string_view lower_bytes);
    bool IsInPackExtras(std::string_view lower_bytes, bool has_capital);

    ProgramState& state_;
    Settings& settings_;
    std::unordered_map<Path::string_type, std::unique_ptr<Loaded>> main_;
    /// Short cuts into main_, for the folder and page below.
    std::array<std::unique_ptr<Row>, 256> by_first_bytes_;
    Path::string_type table_folder_;
    const AnsiCodePage* table_page_ = nullptr;
    /// How many words may still be looked for in files that are not read.
    int looks_left_ = 64;
    MainTableSource table_source_;
    std::optional<MainTable> table_;
    /// How many files are still to be opened before a table is asked for.
    int opens_before_table_ = kOpensBeforeTable;
    /// By the two bytes that words begin with: whether the table answers for them.
    std::bitset<256 * 256> tabled_;
    /// In the order of the list, for the folder below.
    std::vector<Custom> custom_;
    Path::string_type custom_data_folder_;
    std::vector<Error> unreadable_;
    ForbiddenWords forbidden_;
    bool forbidden_is_read_ = false;
    /// Where they were read.
    Path::string_type forbidden_data_folder_;
    /// Of the folder above.
    std::optional<PackExtras> extras_;
    /// The word being looked up, kept for its memory.
    std::string lower_bytes_;
};

}  // namespace wordhawk
