#pragma once

#include "app/delimiter_flags.h"
#include "app/modRegs.h"
#include "app/program_state.h"

#include <array>
#include <string>
#include <string_view>

namespace wordhawk {

/// What the preferences dialog holds between opening and OK; no window.
struct Preferences {
    /// Check boxes by their index; the ninth does not exist.
    static constexpr int kOptionCount = 13;
    static constexpr int kNoOption = 9;
    /// Kept in the flags, not in a setting.
    static constexpr int kWarnBeforeMainAdd = 7;
    static constexpr int kSetClip = 1;
    static constexpr int kTabCount = 4;
    static constexpr int kModernCount = 4;

    std::array<bool, kOptionCount> options{};
    /// 0 to 2.
    int sort_by = 0;
    bool rich_clipboard = false;
    std::wstring sound;
    /// By flag number less one.
    std::array<bool, DelimiterFlagStore::kDelimiterCount> delimiters{};
    /// The modern ways of checking, in the order of ModernKey.
    std::array<bool, kModernCount> modern{};
    int tab = 0;
};

/// Key of the setting behind a check box; empty for those without one.
std::wstring_view PreferenceKey(int option);

/// Key of the setting behind one of the modern ways of checking.
std::wstring_view ModernKey(int way);

/// The choices in force: check boxes and the sound as the settings file has them, the rest as the
/// program uses it.
Preferences LoadPreferences(const ProgramState& state, const Settings& settings,
                            const DelimiterFlagStore& flags);

/// Makes the choices hold: in the settings file, in `settings`, in the delimiter flags and in
/// `state.Delimiters`. False when the file could not be written; they hold for this run then.
bool StorePreferences(const Preferences& chosen, ProgramState& state, Settings& settings,
                      DelimiterFlagStore& flags);

/// Remembers the tab that was shown last.
bool StorePreferenceTab(const ProgramState& state, Settings& settings, int tab);

/// Stores the box "warn before adding to the main dictionary" at once, in flag 255. What the box
/// shows and the warning obeys is flag 254: one apart, so that a click changes no warning.
bool StoreMainAddWarning(DelimiterFlagStore& flags, bool checked);

}  // namespace wordhawk
