#include "app/modRegs.h"

#include "platform/modSect.h"

#include <algorithm>
#include <array>
#include <limits>

namespace wordhawk::modRegs {
namespace {

constexpr std::wstring_view kDefaultDictionary = L"CUSTOM.DIC";

/// The number, or 0 where the type cannot hold it.
template <class Number>
Number InRangeOrZero(std::wstring_view text) {
    const std::int32_t number = NumberOrZero(text);
    const bool fits = number >= std::numeric_limits<Number>::min() &&
                      number <= std::numeric_limits<Number>::max();
    return fits ? static_cast<Number>(number) : Number{0};
}

void Assign(std::uint8_t& member, std::wstring_view text) {
    member = InRangeOrZero<std::uint8_t>(text);
}
void Assign(bool& member, std::wstring_view text) { member = NumberOrZero(text) != 0; }
// Whole numbers of the settings have 16 bits.
void Assign(int& member, std::wstring_view text) { member = InRangeOrZero<std::int16_t>(text); }
void Assign(std::wstring& member, std::wstring_view text) { member = text; }

std::wstring Text(const std::wstring& member) { return member; }
std::wstring Text(int member) { return std::to_wstring(member); }

enum class Loaded { Always, InProgramModeOnly };

template <auto Member>
constexpr SettingRow Row(std::wstring_view key, std::wstring_view default_text,
                         Loaded loaded = Loaded::Always) {
    return {key, default_text, loaded == Loaded::InProgramModeOnly,
            [](Settings& settings, std::wstring_view text) { Assign(settings.*Member, text); },
            [](const Settings& settings) { return Text(settings.*Member); }};
}

constexpr SettingRow TrimmedConfirmation() {
    SettingRow row = Row<&Settings::Confirmation>(L"Confirmation", L"");
    row.assign = [](Settings& settings, std::wstring_view text) {
        settings.Confirmation = Trim(text);
    };
    return row;
}

constexpr SettingRow NeverEmptyCustomDic() {
    SettingRow row = Row<&Settings::CustomDic>(L"CustomDic", kDefaultDictionary);
    row.assign = [](Settings& settings, std::wstring_view text) {
        settings.CustomDic = text.empty() ? kDefaultDictionary : text;
    };
    return row;
}

constexpr auto kProgramOnly = Loaded::InProgramModeOnly;

constexpr std::array kRows = {
    TrimmedConfirmation(),
    Row<&Settings::SuggFromMain>(L"SuggFromMain", L"0"),
    NeverEmptyCustomDic(),
    Row<&Settings::ScoreBox>(L"ScoreBox", L"0"),
    Row<&Settings::IgnoreWebs>(L"IgnoreWebs", L"1"),
    Row<&Settings::IgnoreUCase>(L"IgnoreUCase", L"1"),
    Row<&Settings::IgnoreNumbers>(L"IgnoreNumbers", L"1"),
    Row<&Settings::SortBy>(L"SortBy", L"0", kProgramOnly),
    Row<&Settings::ClipType>(L"ClipType", L"0", kProgramOnly),
    Row<&Settings::CheckClip>(L"CheckClip", L"0", kProgramOnly),
    Row<&Settings::SetClip>(L"SetClip", L"0", kProgramOnly),
    Row<&Settings::SaveBack>(L"SaveBack", L"0", kProgramOnly),
    Row<&Settings::OpenSave>(L"OpenSave", L"0", kProgramOnly),
    Row<&Settings::RemainOpen>(L"RemainOpen", L"0", kProgramOnly),
    Row<&Settings::OpenWOptions>(L"OpenWOptions", L"0"),
    Row<&Settings::ScoreValue>(L"ScoreValue", L"80"),
    Row<&Settings::Diversity>(L"Diversity", L"2"),
    Row<&Settings::ExtraDiversity>(L"ExtraDiversity", L"0"),
    Row<&Settings::PrefTab>(L"PrefTab", L"0"),
    Row<&Settings::Language>(L"Language", L""),
    Row<&Settings::KeepUnsaved>(L"KeepUnsaved", L"1"),
    Row<&Settings::WideSearch>(L"WideSearch", L"0"),
    Row<&Settings::StraightApostrophe>(L"StraightApostrophe", L"0"),
    Row<&Settings::Compounds>(L"Compounds", L"0"),
    Row<&Settings::LettersStay>(L"LettersStay", L"0"),
};

bool Holds(std::span<const std::wstring> names, std::wstring_view name) {
    return std::any_of(names.begin(), names.end(),
                       [&](const std::wstring& other) { return EqualIgnoringCase(other, name); });
}

/// The names that a section's entries give, empty ones left out.
std::vector<std::wstring> NamesOf(const std::vector<std::wstring>& entries) {
    std::vector<std::wstring> names;
    for (const std::wstring& entry : entries) {
        const std::size_t equals = entry.find(L'=');
        if (equals == entry.npos || equals + 1 == entry.size()) continue;
        names.push_back(entry.substr(equals + 1));
    }
    return names;
}

/// Reads the active custom dictionaries; an empty section makes `settings.CustomDic` CUSTOM.DIC.
void LoadCustomDictionaryList(const modSect::ProfileReader& file, Settings& settings) {
    settings.CustomDictionaries = NamesOf(file.ReadSection(kDictionariesSection));
    if (settings.CustomDictionaries.empty()) {
        settings.CustomDictionaries.emplace_back(kDefaultDictionary);
        settings.CustomDic = kDefaultDictionary;
    }
}

/// Numbers the names, or CUSTOM.DIC where there are none. One that the file's page cannot hold is
/// refused: it would come back as another name.
Result<void> WriteNames(const ProgramState& state, modSect::Change& change,
                        std::span<const std::wstring> names) {
    const std::wstring default_name(kDefaultDictionary);
    if (names.empty()) names = std::span(&default_name, 1);
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!change.CanHold(names[i])) {
            return tl::unexpected(Error{L"the settings file cannot hold the name " + names[i] +
                                            L": its code page lacks a letter of it",
                                        state.SettingsFile});
        }
        change.Set(kDictionariesSection, std::to_wstring(i), names[i]);
    }
    return {};
}

}  // namespace

std::span<const SettingRow> Rows() { return kRows; }

const SettingRow* FindRow(std::wstring_view key) {
    const auto has_key = [&](const SettingRow& row) { return EqualIgnoringCase(row.key, key); };
    const auto row = std::find_if(kRows.begin(), kRows.end(), has_key);
    return row == kRows.end() ? nullptr : &*row;
}

Settings LoadSettings(const ProgramState& state) {
    return LoadSettings(state, modSect::ProfileReader(state.SettingsProfile()), {});
}

Settings LoadSettings(const ProgramState& state, const modSect::ProfileReader& file,
                      std::span<const KeyAndText> defaults) {
    Settings settings;
    std::vector<const SettingRow*> rows;
    std::vector<modSect::KeyAndValue> keys;
    for (const SettingRow& row : kRows) {
        if (row.program_only && !state.ProgramMode) continue;
        rows.push_back(&row);
        keys.push_back({std::wstring(row.key), std::wstring(row.default_text)});
    }
    const std::vector<std::wstring> values = file.ReadSettings(kSettingsSection, keys);
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i]->assign(settings, values[i]);
    for (const auto& [key, value] : defaults) {
        const SettingRow* const row = FindRow(key);
        // An empty value does not name it either.
        const bool named = !file.ReadSetting(kSettingsSection, key, {}).empty();
        if (row != nullptr && !named) row->assign(settings, value);
    }
    LoadCustomDictionaryList(file, settings);
    return settings;
}

bool SaveCustomDictionaryList(const ProgramState& state, std::span<const std::wstring> names) {
    const auto write = [&](modSect::Change& change) { return WriteNames(state, change, names); };
    return modSect::ChangeProfile(state.SettingsProfile(), write).has_value();
}

bool MergeCustomDictionaryList(const ProgramState& state, std::span<const std::wstring> names,
                               std::span<const std::wstring> known) {
    const auto merge = [&](modSect::Change& change) {
        std::vector<std::wstring> list(names.begin(), names.end());
        for (std::wstring& name : NamesOf(change.Section(kDictionariesSection))) {
            if (!Holds(known, name) && !Holds(list, name)) list.push_back(std::move(name));
        }
        return WriteNames(state, change, list);
    };
    return modSect::ChangeProfile(state.SettingsProfile(), merge).has_value();
}

Result<void> ActivateCustomDictionary(const ProgramState& state, Settings& settings,
                                      std::wstring_view name) {
    std::vector<std::wstring> names;
    const auto activate = [&](modSect::Change& change) {
        names = NamesOf(change.Section(kDictionariesSection));
        if (names.empty()) names.emplace_back(kDefaultDictionary);
        if (!Holds(names, name)) names.emplace_back(name);
        return WriteNames(state, change, names);
    };
    Result<void> written = modSect::ChangeProfile(state.SettingsProfile(), activate);
    if (written) settings.CustomDictionaries = std::move(names);
    return written;
}

bool SaveSetting(const ProgramState& state, const Settings& settings, std::wstring_view key) {
    const SettingRow* row = FindRow(key);
    return row && modSect::WriteSetting(kSettingsSection, row->key, row->text(settings),
                                        state.SettingsProfile());
}

}  // namespace wordhawk::modRegs
