#include "app/modRegs.h"

#include "platform/modSect.h"
#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>

#include <thread>

namespace wordhawk {
namespace {

using modRegs::LoadSettings;
using test::WriteBytes;
using testing::ElementsAre;

class ModRegs : public testing::Test {
  protected:
    ModRegs() {
        state_.SettingsFile = folder_ / L"Wordhawk.ini";
        state_.ProgramMode = true;
    }
    /// Every setting as text, by loading a file with `lines` in section Settings.
    Settings Load(const std::string& lines) {
        WriteBytes(state_.SettingsFile, "[Settings]\r\n" + lines + "\r\n");
        return LoadSettings(state_);
    }
    test::TempDir folder_;
    ProgramState state_;
};

TEST_F(ModRegs, KeysAndDefaults) {
    const struct {
        const wchar_t* key;
        const wchar_t* value;
    } defaults[] = {
        {L"Confirmation", L""},
        {L"SuggFromMain", L"0"},
        {L"CustomDic", L"CUSTOM.DIC"},
        {L"ScoreBox", L"0"},
        {L"IgnoreWebs", L"1"},
        {L"IgnoreUCase", L"1"},
        {L"IgnoreNumbers", L"1"},
        {L"SortBy", L"0"},
        {L"ClipType", L"0"},
        {L"CheckClip", L"0"},
        {L"SetClip", L"0"},
        {L"SaveBack", L"0"},
        {L"OpenSave", L"0"},
        {L"RemainOpen", L"0"},
        {L"OpenWOptions", L"0"},
        {L"ScoreValue", L"80"},
        {L"Diversity", L"2"},
        {L"ExtraDiversity", L"0"},
        {L"PrefTab", L"0"},
        {L"Language", L""},
        {L"KeepUnsaved", L"1"},
        {L"WideSearch", L"0"},
        {L"StraightApostrophe", L"0"},
        {L"Compounds", L"0"},
        {L"LettersStay", L"0"},
    };
    const Settings settings = LoadSettings(state_);
    ASSERT_EQ(modRegs::Rows().size(), std::size(defaults));
    for (std::size_t i = 0; i < std::size(defaults); ++i) {
        const modRegs::SettingRow& row = modRegs::Rows()[i];
        EXPECT_EQ(row.key, defaults[i].key);
        EXPECT_EQ(row.text(settings), defaults[i].value) << i;
        EXPECT_EQ(row.text(Settings()), defaults[i].value) << "an unloaded struct, " << i;
    }
    EXPECT_THAT(settings.CustomDictionaries, ElementsAre(L"CUSTOM.DIC"));
}

TEST_F(ModRegs, EveryKeyIsReadAndWritten) {
    int number = 0;
    std::string lines;
    for (const modRegs::SettingRow& row : modRegs::Rows()) {
        const bool is_boolean = row.text(Settings()).size() == 1 && [&] {
            Settings probe;
            row.assign(probe, L"7");
            return row.text(probe) == L"1";
        }();
        const std::string value = is_boolean ? "1" : std::to_string(50 + number++);
        lines += ToUtf8(row.key) + "=" + value + "\r\n";
    }
    const Settings loaded = Load(lines + "[Dictionarys]\r\n0=A.DIC");
    const Path copy = folder_ / L"copy.ini";
    state_.SettingsFile = copy;
    for (const modRegs::SettingRow& row : modRegs::Rows()) {
        EXPECT_TRUE(modRegs::SaveSetting(state_, loaded, row.key));
    }
    EXPECT_EQ(test::ReadBytes(copy), "[Settings]\r\n" + lines);
}

struct ValueCase {
    const wchar_t* key;
    const char* stored;
    const wchar_t* value;
    const char* reason;
};

TEST_F(ModRegs, OddValues) {
    const ValueCase cases[] = {
        {L"IgnoreWebs", "", L"0", "an empty value is zero, not the default"},
        {L"IgnoreWebs", "abc", L"0", "no number"},
        {L"IgnoreWebs", "-1", L"0", "below a byte"},
        {L"IgnoreWebs", "255", L"255", "largest byte"},
        {L"IgnoreWebs", "256", L"0", "above a byte"},
        {L"IgnoreWebs", "1.5", L"0", "whole numbers only"},
        {L"IgnoreWebs", "\"1\"", L"1", "quotes are not part of it"},
        {L"ScoreBox", "-1", L"1", "any number but zero is true"},
        {L"ScoreBox", "True", L"0", "words are no numbers"},
        {L"ScoreValue", "32767", L"32767", "largest whole number"},
        {L"ScoreValue", "32768", L"0", "too large"},
        {L"ScoreValue", "-32768", L"-32768", "smallest"},
        {L"ScoreValue", "99999999999999999999", L"0", "far too large"},
        {L"ScoreValue", "+5", L"5", "signed"},
        {L"Confirmation", "\" a b.wav \"", L"a b.wav", "trimmed even inside quotes"},
        {L"CustomDic", "", L"CUSTOM.DIC", "never empty"},
        {L"CustomDic", "\"\"", L"CUSTOM.DIC", "never empty"},
        {L"Language", "abc", L"abc", "kept as text"},
    };
    for (const ValueCase& row : cases) {
        const Settings settings = Load(ToUtf8(row.key) + "=" + row.stored);
        EXPECT_EQ(modRegs::FindRow(row.key)->text(settings), row.value)
            << ToUtf8(row.key) << ": " << row.reason;
    }
}

TEST_F(ModRegs, AutomationLeavesProgramSettingsAtZero) {
    const std::string lines =
        "SortBy=2\r\nClipType=1\r\nCheckClip=1\r\nSetClip=1\r\nSaveBack=1\r\nOpenSave=1\r\n"
        "RemainOpen=1\r\nScoreBox=1\r\nDiversity=4";
    const Settings program = Load(lines);
    EXPECT_EQ(program.SortBy, 2);
    EXPECT_TRUE(program.ClipType && program.CheckClip && program.SetClip && program.SaveBack &&
                program.OpenSave && program.RemainOpen);
    state_.ProgramMode = false;
    const Settings automation = Load(lines);
    EXPECT_EQ(automation.SortBy, 0);
    EXPECT_FALSE(automation.ClipType || automation.CheckClip || automation.SetClip ||
                 automation.SaveBack || automation.OpenSave || automation.RemainOpen);
    EXPECT_TRUE(automation.ScoreBox) << "the others are read in both modes";
    EXPECT_EQ(automation.Diversity, 4);
}

TEST_F(ModRegs, RowsAreFoundWithoutRegardToCase) {
    ASSERT_NE(modRegs::FindRow(L"scorevalue"), nullptr);
    EXPECT_EQ(modRegs::FindRow(L"scorevalue")->key, L"ScoreValue");
    EXPECT_EQ(modRegs::FindRow(L"NoSuchKey"), nullptr);
    EXPECT_FALSE(modRegs::SaveSetting(state_, Settings(), L"NoSuchKey"));
    EXPECT_FALSE(IsFile(state_.SettingsFile));
}

struct ListCase {
    const char* reason;
    const char* section;
    std::vector<std::wstring> names;
    const wchar_t* active;
};

TEST_F(ModRegs, CustomDictionaryLists) {
    const ListCase cases[] = {
        {"no section", "", {L"CUSTOM.DIC"}, L"CUSTOM.DIC"},
        {"empty section", "[Dictionarys]\r\n", {L"CUSTOM.DIC"}, L"CUSTOM.DIC"},
        {"in order", "[Dictionarys]\r\n0=B.DIC\r\n1=A.DIC\r\n", {L"B.DIC", L"A.DIC"}, L"MY.DIC"},
        {"file order, not key order",
         "[Dictionarys]\r\n1=B.DIC\r\n0=A.DIC\r\n",
         {L"B.DIC", L"A.DIC"},
         L"MY.DIC"},
        {"empty in the middle",
         "[Dictionarys]\r\n0=A.DIC\r\n1=\r\n2=C.DIC\r\n",
         {L"A.DIC", L"C.DIC"},
         L"MY.DIC"},
        {"all empty", "[Dictionarys]\r\n0=\r\n1=\r\n", {L"CUSTOM.DIC"}, L"CUSTOM.DIC"},
        {"lines without a name", "[Dictionarys]\r\njunk\r\n0=A.DIC\r\n", {L"A.DIC"}, L"MY.DIC"},
        {"equals sign in the name", "[Dictionarys]\r\n0=A=B.DIC\r\n", {L"A=B.DIC"}, L"MY.DIC"},
    };
    for (const ListCase& row : cases) {
        WriteBytes(state_.SettingsFile,
                   std::string("[Settings]\r\nCustomDic=MY.DIC\r\n") + row.section);
        const Settings settings = LoadSettings(state_);
        EXPECT_EQ(settings.CustomDictionaries, row.names) << row.reason;
        EXPECT_EQ(settings.CustomDic, row.active) << row.reason;
    }
}

TEST_F(ModRegs, KeysOfALongerListStay) {
    const std::vector<std::wstring> three = {L"A.DIC", L"B.DIC", L"C.DIC"};
    ASSERT_TRUE(modRegs::SaveCustomDictionaryList(state_, three));
    EXPECT_EQ(LoadSettings(state_).CustomDictionaries, three);
    ASSERT_TRUE(modRegs::SaveCustomDictionaryList(state_, std::vector<std::wstring>{L"D.DIC"}));
    EXPECT_THAT(LoadSettings(state_).CustomDictionaries, ElementsAre(L"D.DIC", L"B.DIC", L"C.DIC"));
    ASSERT_TRUE(modRegs::SaveCustomDictionaryList(state_, {}));
    EXPECT_THAT(LoadSettings(state_).CustomDictionaries,
                ElementsAre(L"CUSTOM.DIC", L"B.DIC", L"C.DIC"));
}

TEST_F(ModRegs, ProgramsThatActivateAtOnceLoseNoName) {
    constexpr int kPrograms = 8;
    std::vector<std::thread> programs;
    for (int i = 0; i < kPrograms; ++i) {
        programs.emplace_back([&, i] {
            Settings settings = LoadSettings(state_);
            const std::wstring name = L"D" + std::to_wstring(i) + L".DIC";
            EXPECT_TRUE(modRegs::ActivateCustomDictionary(state_, settings, name));
            EXPECT_EQ(settings.CustomDictionaries.front(), L"CUSTOM.DIC");
        });
    }
    for (std::thread& program : programs) program.join();
    EXPECT_EQ(LoadSettings(state_).CustomDictionaries.size(), 1u + kPrograms);
}

TEST_F(ModRegs, AWindowThatClosesKeepsWhatOthersPutOnTheList) {
    WriteBytes(state_.SettingsFile, "[Dictionarys]\r\n0=A.DIC\r\n1=B.DIC\r\n");
    const std::vector<std::wstring> known = LoadSettings(state_).CustomDictionaries;
    Settings other = LoadSettings(state_);
    ASSERT_TRUE(modRegs::ActivateCustomDictionary(state_, other, L"NEW.DIC"));
    EXPECT_TRUE(modRegs::ActivateCustomDictionary(state_, other, L"new.dic")) << "there already";
    ASSERT_TRUE(modRegs::MergeCustomDictionaryList(state_, known, known));
    EXPECT_THAT(LoadSettings(state_).CustomDictionaries,
                ElementsAre(L"A.DIC", L"B.DIC", L"NEW.DIC"));
}

TEST_F(ModRegs, ANameThatTheFileCannotHoldIsRefused) {
    const std::wstring polish =
        L"\x017C"
        L"aba.dic";
    WriteBytes(state_.SettingsFile, "[Dictionarys]\r\n0=A.DIC\r\n");
    Settings settings = LoadSettings(state_);
    const Result<void> activated = modRegs::ActivateCustomDictionary(state_, settings, polish);
    ASSERT_FALSE(activated);
    EXPECT_EQ(activated.error().where, state_.SettingsFile);
    EXPECT_THAT(settings.CustomDictionaries, ElementsAre(L"A.DIC"));
    EXPECT_EQ(test::ReadBytes(state_.SettingsFile), "[Dictionarys]\r\n0=A.DIC\r\n");

    WriteBytes(state_.SettingsFile, std::string("\xFF\xFE", 2));
    EXPECT_TRUE(modRegs::ActivateCustomDictionary(state_, settings, polish)) << "a UTF-16 file can";
    EXPECT_THAT(LoadSettings(state_).CustomDictionaries, ElementsAre(L"CUSTOM.DIC", polish));
}

}  // namespace
}  // namespace wordhawk
