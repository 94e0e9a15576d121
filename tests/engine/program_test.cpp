#include "engine/program.h"

#include "dict/build.h"
#include "dict/custom_words.h"
#include "engine/check/check_pass.h"
#include "platform/modSect.h"
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

TEST_F(ProgramTest, NewerShippedPackTakesThePlaceOfAnOlderOne) {
    const Path shipped = folder_ / L"shipped" / "2057";
    const Path words = folder_ / L"words.txt";
    for (const char* list : {"colour\nharbour\n", "colour\ncolourway\nhumour\n"}) {
        test::WriteBytes(words, list);
        BuildOptions options;
        options.origin = PackOrigin::Shipped;
        ASSERT_TRUE(BuildDictionary(std::span(&words, 1), shipped, options));
        Program program(Options(), ui_);
        EXPECT_TRUE(program.dictionaries.IsWordInDictionaries(L"colour", Scope::MainOnly));
        Path file = program.dictionaries.MainPathFor(L"colourful");
        ASSERT_TRUE(
            AddWordToDictionary(program.dictionaries, L"colourful", AddTarget::ExplicitFile, file));
    }
    Program program(Options(), ui_);
    for (const wchar_t* known : {L"colour", L"colourway", L"humour", L"colourful"})
        EXPECT_TRUE(program.dictionaries.IsWordInDictionaries(known, Scope::MainOnly)) << known;
}

TEST_F(ProgramTest, EachPacksBytesAreReadInItsOwnCodePage) {
    const Path shipped = folder_ / L"shipped";
    const auto build = [&](std::string_view list, const char* locale, int page) {
        const Path words = folder_ / L"words.txt";
        test::WriteBytes(words, list);
        BuildOptions options;
        options.page = &AnsiCodePage::Get(page);
        ASSERT_TRUE(BuildDictionary(std::span(&words, 1), shipped / locale, options));
    };
    build("pi\xC4\x99kny\n", "1045", 1250);
    build("na\xC3\xAFve\n", "2057", 1252);
    const std::wstring text = L"na\xEFve pi\x119kny";
    // On a system whose page is 1252, first by an override and then as stored.
    ProgramOptions options = Options();
    options.setting_overrides = {{L"Language", L"1045"}};
    const Program polish(options, ui_);
    EXPECT_EQ(polish.state.CodePage->Number(), 1250);

    Program program(Options(), ui_);
    const auto unknown = [&] {
        Progress none;
        return CheckText(text, program.dictionaries,
                         SplitRules::From(program.state, program.settings), none)
            .words;
    };
    EXPECT_EQ(unknown(), std::vector<std::wstring>{L"pi\x119kny"});
    MakeFolder(program.state.DataFolder / "Resources" / "1045");
    modSect::WriteSetting(L"Settings", L"Language", L"1045", program.state.SettingsFile);
    EXPECT_EQ(program.ChangeLanguage(), L"1045");
    EXPECT_EQ(unknown(), std::vector<std::wstring>{L"na\xEFve"});
    // The settings keep their page: a name stored in one language is the same in the other.
    const std::vector<std::wstring> names = {L"na\xEFve.dic"};
    EXPECT_TRUE(modRegs::SaveCustomDictionaryList(program.state, names));
    EXPECT_EQ(Program(Options(), ui_).settings.CustomDictionaries, names);
    EXPECT_NE(test::ReadBytes(program.state.SettingsFile).find("na\xEFve.dic"), std::string::npos);
    // What cuts words is told by code: 0xB9 is a sign in one page and a letter in the other.
    EXPECT_NE(program.state.Delimiters.find(L'\x105'), std::wstring::npos);
    Path file;
    ASSERT_TRUE(AddWordToDictionary(program.dictionaries, L"\x142\x119k", AddTarget::Main, file));
    EXPECT_EQ(test::ReadBytes(program.dictionaries.MainPathFor(L"\x142\x119k")),
              EntryLine(L"\x142\x119k", AnsiCodePage::Get(1250)));
}

TEST_F(ProgramTest, APackWithoutItsPageIsInTheSystems) {
    for (const char* told : {"", "437\r\n", "polish\r\n"}) {
        test::WriteBytes(folder_ / L"new" / "Data" / "Dictionarys" / "2057" / "codepage.txt", told);
        const Program program(Options(), ui_);
        EXPECT_EQ(program.state.CodePage->Number(), 1252) << told;
    }
}

TEST_F(ProgramTest, NoInstallLeavesTheFolderEmpty) {
    test::WriteBytes(folder_ / L"shipped" / "2057" / "co_.dic", "colour,67460\r\n");
    ProgramOptions options = Options();
    options.install_shipped = false;
    Program program(options, ui_);
    EXPECT_TRUE(std::filesystem::is_empty(program.state.DataFolder / "Dictionarys" / "2057"));
    EXPECT_FALSE(program.dictionaries.IsWordInDictionaries(L"colour", Scope::MainOnly));
    EXPECT_TRUE(std::filesystem::is_empty(program.state.DataFolder / "Resources" / "2057"));
    EXPECT_EQ(program.state.LanguageId, L"2057");
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
