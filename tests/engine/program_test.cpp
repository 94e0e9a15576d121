#include "engine/program.h"

#include "engine/check/check_pass.h"
#include "tests/support/fake_services.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::FakeUi;
using test::TempDir;

class ProgramTest : public testing::Test {
  protected:
    ProgramOptions Options() {
        ProgramOptions options;
        options.data_folder = folder_ / L"new" / "Data";
        options.locale = 2057;
        options.shipped_dictionaries = folder_ / L"shipped";
        options.shipped_languages = folder_ / L"languages";
        return options;
    }
    TempDir folder_;
    FakeUi ui_;
};

TEST_F(ProgramTest, FirstStartMakesFoldersSettingsAndLanguage) {
    const Program program(Options(), ui_);
    for (const char* name : {"Dictionarys/Custom", "Dictionarys/2057", "Dictionarys/1033",
                             "Resources/1033", "Resources/2057", "Sounds", "Saves"}) {
        EXPECT_TRUE(IsFolder(program.state.DataFolder / name)) << name;
    }
    EXPECT_EQ(program.state.LanguageId, L"2057");
    EXPECT_TRUE(program.state.FoldersReady);
    EXPECT_TRUE(program.state.ProgramMode);
    EXPECT_EQ(program.settings.ScoreValue, 80);
    EXPECT_EQ(program.settings.CustomDictionaries, std::vector<std::wstring>{L"CUSTOM.DIC"});
    EXPECT_NE(program.state.Delimiters.find(L'@'), std::wstring::npos);
    EXPECT_EQ(program.state.Delimiters.find(L'\''), std::wstring::npos);
}

TEST_F(ProgramTest, ShippedDictionariesAreCopiedOnceAndLeftAlone) {
    test::WriteBytes(folder_ / L"shipped" / "2057" / "co_.dic", "colour,67460\r\n");
    {
        Program program(Options(), ui_);
        EXPECT_TRUE(program.dictionaries.IsWordInDictionaries(L"Colour", Scope::MainOnly));
    }
    const Path installed = folder_ / L"new" / "Data" / "Dictionarys" / "2057" / "co_.dic";
    test::WriteBytes(installed, "mine,77500\r\n");
    Program again(Options(), ui_);
    EXPECT_EQ(test::ReadBytes(installed), "mine,77500\r\n");
}

TEST_F(ProgramTest, NoInstallLeavesTheFolderEmpty) {
    test::WriteBytes(folder_ / L"shipped" / "2057" / "co_.dic", "colour,67460\r\n");
    ProgramOptions options = Options();
    options.install_shipped = false;
    Program program(options, ui_);
    EXPECT_TRUE(std::filesystem::is_empty(program.state.DataFolder / "Dictionarys" / "2057"));
    EXPECT_FALSE(program.dictionaries.IsWordInDictionaries(L"colour", Scope::MainOnly));
}

TEST_F(ProgramTest, OverridesHoldForOneRunOnly) {
    ProgramOptions options = Options();
    options.setting_overrides = {{L"scorevalue", L"55"}, {L"Language", L"1036"}};
    options.flag_overrides = {{16, 1}};
    {
        const Program program(options, ui_);
        EXPECT_EQ(program.settings.ScoreValue, 55);
        EXPECT_NE(program.state.Delimiters.find(L'0'), std::wstring::npos);
        EXPECT_EQ(program.state.LanguageId, L"1036");
    }
    const Program next(Options(), ui_);
    EXPECT_EQ(next.settings.ScoreValue, 80);
    EXPECT_EQ(next.state.Delimiters.find(L'0'), std::wstring::npos);
    EXPECT_EQ(next.state.LanguageId, L"2057");
}

TEST_F(ProgramTest, ForAutomationTheProgramOnlySettingsStayZero) {
    test::WriteBytes(folder_ / L"new" / "Data" / "Wordhawk.ini",
                     "[Settings]\r\nSortBy=2\r\nScoreValue=70\r\n");
    ProgramOptions options = Options();
    options.program_mode = false;
    const Program program(options, ui_);
    EXPECT_EQ(program.settings.SortBy, 0);
    EXPECT_EQ(program.settings.ScoreValue, 70);
    EXPECT_FALSE(program.state.WindowMode);
}

TEST_F(ProgramTest, DictionariesThatCannotBeInstalledAreToldOf) {
    const ProgramOptions options = Options();
    test::WriteBytes(folder_ / L"shipped" / "2057" / "he_.dic", "hello,72400\r\n");
    // Nobody can lock where a folder stands in the lock file's place.
    const Path lock = options.data_folder / "Dictionarys" / ".wordhawk.lock";
    std::filesystem::create_directories(lock);
    const Program program(options, ui_);
    ASSERT_TRUE(program.install_failure);
    EXPECT_EQ(program.install_failure->where, program.state.DataFolder / "Dictionarys" / "2057");
    std::filesystem::remove(lock);
    EXPECT_FALSE(Program(options, ui_).install_failure);
}

}  // namespace
}  // namespace wordhawk
