#pragma once

#include "app/program_state.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wordhawk {

/// Every scalar setting under its key's name, with its default. Members marked P are read from the
/// file only when the program was started by the user; for automation they stay zero.
struct Settings {
    std::wstring Confirmation;
    std::uint8_t SuggFromMain = 0;
    std::wstring CustomDic = L"CUSTOM.DIC";
    bool ScoreBox = false;
    std::uint8_t IgnoreWebs = 1;
    std::uint8_t IgnoreUCase = 1;
    std::uint8_t IgnoreNumbers = 1;
    std::uint8_t SortBy = 0;  // P
    bool ClipType = false;    // P
    bool CheckClip = false;   // P
    bool SetClip = false;     // P
    bool SaveBack = false;    // P
    bool OpenSave = false;    // P
    bool RemainOpen = false;  // P
    int OpenWOptions = 0;
    int ScoreValue = 80;
    int Diversity = 2;
    int ExtraDiversity = 0;
    int PrefTab = 0;
    std::wstring Language;

    /// A text that would be lost is kept in the folder of saved texts.
    std::uint8_t KeepUnsaved = 1;

    // The modern ways of checking; in the window and for automation each is off unless set.

    /// Suggestions come from the whole dictionary.
    std::uint8_t WideSearch = 0;
    /// The typographic apostrophe (U+2019) reads as the straight one.
    std::uint8_t StraightApostrophe = 0;
    /// Words made of known words are known, in languages that make them so.
    std::uint8_t Compounds = 0;
    /// A letter never delimits words, whatever its delimiter flag says.
    std::uint8_t LettersStay = 0;

    /// Names of the active custom dictionaries, in order; never empty once loaded.
    std::vector<std::wstring> CustomDictionaries = {L"CUSTOM.DIC"};
};

namespace modRegs {

inline constexpr std::wstring_view kSettingsSection = L"Settings";
inline constexpr std::wstring_view kDictionariesSection = L"Dictionarys";
inline constexpr std::wstring_view kRecentChangesSection = L"Recentchanges";

/// One row of the settings table.
struct SettingRow {
    std::wstring_view key;
    std::wstring_view default_text;
    bool program_only;
    /// Converts and stores the text of the value; a text that does not convert gives zero.
    void (*assign)(Settings&, std::wstring_view text);
    /// The value as it is written to the file.
    std::wstring (*text)(const Settings&);
};

/// All rows, in the order of the struct.
std::span<const SettingRow> Rows();
/// The row of a key (without regard to case), or null.
const SettingRow* FindRow(std::wstring_view key);

/// Reads every setting and the custom dictionary list from the settings file.
Settings LoadSettings(const ProgramState& state);

/// A value for a setting that the file may not name.
using KeyAndText = std::pair<std::wstring, std::wstring>;

/// The same by who has read the file already, with other defaults than those of the table.
Settings LoadSettings(const ProgramState& state, const modSect::ProfileReader& file,
                      std::span<const KeyAndText> defaults);

/// Writes the list under keys "0", "1", ...; an empty list is written as CUSTOM.DIC. Keys of an
/// earlier, longer list stay in the file and are read again at the next start. False when the
/// file could not be written, or cannot hold a name.
bool SaveCustomDictionaryList(const ProgramState& state, std::span<const std::wstring> names);

/// The same by a caller who read the list, as `known`, some time ago: names that another program
/// put on it since stay on it, behind the caller's.
bool MergeCustomDictionaryList(const ProgramState& state, std::span<const std::wstring> names,
                               std::span<const std::wstring> known);

/// Puts a name on the list as it stands in the file now, unless it is there already, and reads the
/// list into `settings`. Errors: as above.
Result<void> ActivateCustomDictionary(const ProgramState& state, Settings& settings,
                                      std::wstring_view name);

/// Writes one value as it stands in `settings`. False when the file could not be written.
bool SaveSetting(const ProgramState& state, const Settings& settings, std::wstring_view key);

}  // namespace modRegs
}  // namespace wordhawk
