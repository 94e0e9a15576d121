#include "app/preferences.h"

#include "platform/modSect.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

/// One start of the program on a settings file.
class Start {
  public:
    explicit Start(const test::TempDir& folder) {
        state.ProgramMode = true;
        state.SettingsFile = folder / L"Wordhawk.ini";
        flags.Load(state.SettingsFile);
        state.Delimiters = BuildDelimiters(flags, *state.CodePage);
        settings = modRegs::LoadSettings(state);
    }
    Preferences Load() const { return LoadPreferences(state, settings, flags); }
    bool Store(const Preferences& chosen) {
        return StorePreferences(chosen, state, settings, flags);
    }
    std::wstring Stored(std::wstring_view key) const {
        return modSect::ReadSetting(L"Settings", key, L"(none)", state.SettingsFile);
    }
    void Write(std::wstring_view key, std::wstring_view value) const {
        modSect::WriteSetting(L"Settings", key, value, state.SettingsFile);
    }

    ProgramState state;
    Settings settings;
    DelimiterFlagStore flags;
};

TEST(Preferences, DefaultsWithoutAFile) {
    const test::TempDir folder;
    const Preferences now = Start(folder).Load();
    for (int i = 0; i < Preferences::kOptionCount; ++i) {
        const bool checked = i == 7 || i == 8 || i == 10 || i == 11;
        EXPECT_EQ(now.options[static_cast<std::size_t>(i)], checked) << i;
    }
    EXPECT_EQ(now.sort_by, 0);
    EXPECT_FALSE(now.rich_clipboard);
    EXPECT_EQ(now.sound, L"");
    EXPECT_EQ(now.tab, 0);
    EXPECT_EQ(now.modern, decltype(now.modern){}) << "off unless set";
    for (int flag = 1; flag <= 108; ++flag) {
        EXPECT_EQ(now.delimiters[static_cast<std::size_t>(flag - 1)], flag < 16 || flag > 25);
    }
}

TEST(Preferences, OddValuesOfTheFile) {
    const test::TempDir folder;
    struct Case {
        const wchar_t* key;
        const wchar_t* value;
        int sort_by;
        int tab;
        bool check_clip;
        const char* reason;
    };
    const Case cases[] = {
        {L"SortBy", L"7", 1, 0, false, "an unknown order counts as words"},
        {L"SortBy", L"2", 2, 0, false, ""},
        {L"PrefTab", L"3", 0, 3, false, ""},
        {L"PrefTab", L"4", 0, 0, false, "no such tab"},
        {L"PrefTab", L"-1", 0, 0, false, "no such tab"},
        {L"CheckClip", L"2", 0, 0, false, "only 1 is a check mark"},
        {L"CheckClip", L"1", 0, 0, true, ""},
    };
    for (const Case& c : cases) {
        const test::TempDir fresh;
        Start(fresh).Write(c.key, c.value);
        const Preferences now = Start(fresh).Load();
        EXPECT_EQ(now.sort_by, c.sort_by) << c.reason;
        EXPECT_EQ(now.tab, c.tab) << c.reason;
        EXPECT_EQ(now.options[0], c.check_clip) << c.reason;
    }
}

TEST(Preferences, StoredChoicesHoldNowAndAfterARestart) {
    const test::TempDir folder;
    for (const bool on : {true, false}) {
        Start start(folder);
        Preferences chosen = start.Load();
        for (bool& option : chosen.options) option = on;
        chosen.options[Preferences::kWarnBeforeMainAdd] = true;
        chosen.options[Preferences::kNoOption] = false;
        chosen.modern.fill(on);
        chosen.sort_by = on ? 2 : 1;
        chosen.rich_clipboard = on;
        chosen.sound = on ? L"  C:\\ding.wav " : L"";
        for (std::size_t i = 0; i < chosen.delimiters.size(); ++i) {
            chosen.delimiters[i] = (i % 2 == 0) == on;
        }
        ASSERT_TRUE(start.Store(chosen));
        EXPECT_EQ(start.settings.CheckClip, on);
        EXPECT_EQ(start.settings.IgnoreWebs, on ? 1 : 0);
        EXPECT_EQ(start.settings.ClipType, on);
        EXPECT_EQ(start.settings.OpenWOptions, on ? 1 : 0);
        EXPECT_EQ(start.settings.Confirmation, on ? L"C:\\ding.wav" : L"");
        EXPECT_EQ(start.settings.SortBy, chosen.sort_by);
        EXPECT_EQ(start.Stored(L"RemainOpen"), on ? L"1" : L"0");
        EXPECT_EQ(start.settings.WideSearch, on ? 1 : 0);
        for (int way = 0; way < Preferences::kModernCount; ++way) {
            EXPECT_EQ(start.Stored(ModernKey(way)), on ? L"1" : L"0");
        }

        Start later(folder);
        const Preferences again = later.Load();
        EXPECT_EQ(again.options, chosen.options);
        EXPECT_EQ(again.modern, chosen.modern);
        EXPECT_EQ(again.sort_by, chosen.sort_by);
        EXPECT_EQ(again.rich_clipboard, chosen.rich_clipboard);
        EXPECT_EQ(again.sound, start.settings.Confirmation);
        EXPECT_EQ(again.delimiters, chosen.delimiters);
        EXPECT_EQ(later.state.Delimiters, start.state.Delimiters);
    }
}

TEST(Preferences, DelimitersAreTheChosenCharactersInTheirOrder) {
    const test::TempDir folder;
    Start start(folder);
    Preferences chosen = start.Load();
    chosen.delimiters.fill(false);
    for (const std::size_t flag : {1u, 14u, 16u, 107u}) chosen.delimiters[flag - 1] = true;
    ASSERT_TRUE(start.Store(chosen));
    EXPECT_EQ(start.state.Delimiters, L"\t.0\x00F7");
    EXPECT_EQ(start.flags.Get(249), 1) << "other switches stay";
}

TEST(Preferences, WarningIsShownFromOneFlagAndSavedToTheNext) {
    const test::TempDir folder;
    for (const bool checked : {true, false}) {
        Start start(folder);
        EXPECT_TRUE(start.Load().options[Preferences::kWarnBeforeMainAdd]);
        EXPECT_TRUE(StoreMainAddWarning(start.flags, checked));
        EXPECT_EQ(start.flags.Get(254), 1);
        EXPECT_EQ(Start(folder).flags.Get(255), checked ? 1 : 0);
    }
}

TEST(Preferences, TwoRunningCopiesKeepEachOthersFlags) {
    const test::TempDir folder;
    Start one(folder);
    Start other(folder);
    const DelimiterFlagStore::Flag import_switch[] = {{250, 0}};
    ASSERT_TRUE(one.flags.Change(import_switch));
    ASSERT_TRUE(StoreMainAddWarning(other.flags, true));
    EXPECT_EQ(other.flags.Get(250), 1) << "what this copy works by does not change under it";
    const Start later(folder);
    EXPECT_EQ(later.flags.Get(250), 0);
    EXPECT_EQ(later.flags.Get(255), 1);
}

TEST(Preferences, TabIsRemembered) {
    const test::TempDir folder;
    Start start(folder);
    EXPECT_TRUE(StorePreferenceTab(start.state, start.settings, 2));
    EXPECT_EQ(Start(folder).Load().tab, 2);
    EXPECT_EQ(start.Stored(L"CheckClip"), L"(none)") << "nothing else is written";
}

}  // namespace
}  // namespace wordhawk
