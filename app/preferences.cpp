#include "app/preferences.h"

#include "platform/modSect.h"

#include <vector>

namespace wordhawk {
namespace {

constexpr int kShownWarningFlag = 254;
constexpr int kSavedWarningFlag = 255;

constexpr std::array<std::wstring_view, Preferences::kOptionCount> kKeys = {
    L"CheckClip",    L"SetClip",       L"SaveBack", L"OpenSave",   L"RemainOpen",
    L"OpenWOptions", L"SuggFromMain",  L"",         L"IgnoreWebs", L"",
    L"IgnoreUCase",  L"IgnoreNumbers", L"ScoreBox",
};

constexpr std::array<std::wstring_view, Preferences::kModernCount> kModernKeys = {
    L"WideSearch", L"StraightApostrophe", L"Compounds", L"LettersStay"};

std::wstring_view Digit(bool on) { return on ? L"1" : L"0"; }

bool IsChecked(const ProgramState& state, std::wstring_view key) {
    return NumberOrZero(modSect::ReadSetting(modRegs::kSettingsSection, key,
                                             modRegs::FindRow(key)->default_text,
                                             state.SettingsFile)) == 1;
}

}  // namespace

std::wstring_view PreferenceKey(int option) {
    return option >= 0 && option < Preferences::kOptionCount
               ? kKeys[static_cast<std::size_t>(option)]
               : std::wstring_view();
}

std::wstring_view ModernKey(int way) {
    return way >= 0 && way < Preferences::kModernCount ? kModernKeys[static_cast<std::size_t>(way)]
                                                       : std::wstring_view();
}

Preferences LoadPreferences(const ProgramState& state, const Settings& settings,
                            const DelimiterFlagStore& flags) {
    Preferences now;
    for (std::size_t i = 0; i < kKeys.size(); ++i) {
        if (!kKeys[i].empty()) now.options[i] = IsChecked(state, kKeys[i]);
    }
    for (std::size_t i = 0; i < kModernKeys.size(); ++i) {
        now.modern[i] = IsChecked(state, kModernKeys[i]);
    }
    now.options[Preferences::kWarnBeforeMainAdd] = flags.Get(kShownWarningFlag) == 1;
    now.sort_by = settings.SortBy <= 2 ? settings.SortBy : 1;
    now.rich_clipboard = settings.ClipType;
    now.sound =
        modSect::ReadSetting(modRegs::kSettingsSection, L"Confirmation", L"", state.SettingsFile);
    for (std::size_t i = 0; i < now.delimiters.size(); ++i) {
        now.delimiters[i] = flags.Get(static_cast<int>(i) + 1) == 1;
    }
    const std::int32_t tab = NumberOrZero(
        modSect::ReadSetting(modRegs::kSettingsSection, L"PrefTab", L"0", state.SettingsFile));
    now.tab = tab >= 0 && tab < Preferences::kTabCount ? tab : 0;
    return now;
}

bool StorePreferences(const Preferences& chosen, ProgramState& state, Settings& settings,
                      DelimiterFlagStore& flags) {
    std::vector<modSect::KeyAndValue> values;
    const auto put = [&](std::wstring_view key, std::wstring value) {
        modRegs::FindRow(key)->assign(settings, value);
        values.push_back({std::wstring(key), std::move(value)});
    };
    const auto put_option = [&](std::size_t i) {
        if (!kKeys[i].empty()) put(kKeys[i], std::wstring(Digit(chosen.options[i])));
    };
    put_option(0);
    put_option(1);
    put(L"ClipType", std::wstring(Digit(chosen.rich_clipboard)));
    for (std::size_t i = 2; i < kKeys.size(); ++i) put_option(i);
    put(L"Confirmation", std::wstring(Trim(chosen.sound)));
    put(L"SortBy", std::to_wstring(chosen.sort_by));
    for (std::size_t i = 0; i < kModernKeys.size(); ++i) {
        put(kModernKeys[i], std::wstring(Digit(chosen.modern[i])));
    }
    bool written = modSect::WriteSettings(modRegs::kSettingsSection, values, state.SettingsFile);

    std::vector<DelimiterFlagStore::Flag> changed;
    for (std::size_t i = 0; i < chosen.delimiters.size(); ++i) {
        changed.push_back({static_cast<int>(i) + 1, chosen.delimiters[i] ? 1 : 0});
    }
    written &= flags.Change(changed);
    state.Delimiters = BuildDelimiters(flags, *state.CodePage);
    return written;
}

bool StorePreferenceTab(const ProgramState& state, Settings& settings, int tab) {
    settings.PrefTab = tab;
    return modRegs::SaveSetting(state, settings, L"PrefTab");
}

bool StoreMainAddWarning(DelimiterFlagStore& flags, bool checked) {
    const DelimiterFlagStore::Flag changed[] = {{kSavedWarningFlag, checked ? 1 : 0}};
    return flags.Change(changed);
}

}  // namespace wordhawk
