#include "engine/install_languages.h"

#include "engine/program.h"
#include "lang/built_in_texts.h"
#include "lang/modLoadRes.h"
#include "lang/modRcLangs.h"
#include "platform/folders.h"
#include "platform/modSect.h"
#include "tests/support/fake_services.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace wordhawk {
namespace {

namespace fs = std::filesystem;
using modLoadRes::LoadResText;
using test::TempDir;

constexpr int kLastId = 1999;

std::string Shown(std::wstring_view text) { return ToUtf8(text); }

/// %1, %2 ... and every other % sign, in ascending order.
std::multiset<std::wstring> Placeholders(std::wstring_view text) {
    std::multiset<std::wstring> found;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != L'%') continue;
        const bool numbered = i + 1 < text.size() && text[i + 1] >= L'1' && text[i + 1] <= L'9';
        found.emplace(text.substr(i, numbered ? 2 : 1));
    }
    return found;
}

/// Number and text of each line of a shipped file, as the translator wrote it.
std::map<int, std::wstring> Lines(const Path& file) {
    std::map<int, std::wstring> texts;
    const std::wstring all = FromUtf8(test::ReadBytes(file));
    for (std::size_t at = 0; at < all.size();) {
        const std::size_t end = std::min(all.find(L'\n', at), all.size());
        const std::wstring line = all.substr(at, end - at);
        const std::size_t equals = line.find(L'=');
        if (line[0] >= L'1' && line[0] <= L'9' && equals != line.npos) {
            EXPECT_TRUE(
                texts.emplace(NumberOrZero(line.substr(0, equals)), line.substr(equals + 1)).second)
                << "twice: " << Shown(line);
        }
        at = end + 1;
    }
    return texts;
}

class ShippedLanguage : public testing::TestWithParam<int> {};

TEST_P(ShippedLanguage, HoldsEveryTextAndReadsBackAsWritten) {
    const TempDir folder;
    const Path shipped = ProgramFolder() / "languages";
    ProgramState state;
    state.DataFolder = folder.Folder();
    InstallShippedLanguages(state, shipped);
    state.LanguageId = std::to_wstring(GetParam());
    ASSERT_TRUE(modRcLangs::LanguageFileExists(state, state.LanguageId));
    modRcLangs::SetLanguageFilePath(state);

    const auto written = Lines(shipped / ("lang" + std::to_string(GetParam()) + ".ini"));
    for (int id = 100; id <= kLastId; ++id) {
        const std::wstring_view english = BuiltInText(id);
        const auto line = written.find(id);
        ASSERT_EQ(line != written.end(), !english.empty()) << id << " " << Shown(english);
        if (english.empty()) continue;
        const std::wstring& text = line->second;
        // One question for all that the reader may do to a value: blanks, quotes, length, letters.
        EXPECT_EQ(Shown(LoadResText(state, id)), Shown(text)) << id;
        EXPECT_NE(text, L"") << id;
        EXPECT_EQ(text.find(L'\uFFFD'), text.npos) << id << " is not UTF-8";
        EXPECT_EQ(Placeholders(text), Placeholders(english)) << id << " " << Shown(text);
        const auto accelerators = std::count(text.begin(), text.end(), L'&');
        EXPECT_LE(accelerators, std::count(english.begin(), english.end(), L'&'))
            << id << " " << Shown(text) << ": where the English has none, the window adds it";
        EXPECT_FALSE(text.ends_with(L'&')) << id;
    }
}

INSTANTIATE_TEST_SUITE_P(All, ShippedLanguage,
                         testing::Values(1030, 1031, 1034, 1036, 1040, 1043, 1045, 1046, 1053,
                                         2070),
                         testing::PrintToStringParamName());

class InstallLanguages : public testing::Test {
  protected:
    InstallLanguages() {
        state_.DataFolder = folder_ / L"data";
        Ship("[Wordhawk]\n115=Abbrechen\n105=Hinzuf\xC3\xBCgen\n");
    }
    /// A shipped file of another time than the ones before.
    void Ship(std::string_view text) {
        test::WriteBytes(Shipped() / "lang1031.ini", text);
        fs::last_write_time(Shipped() / "lang1031.ini",
                            fs::file_time_type::clock::now() - std::chrono::hours(++age_));
    }
    Path Shipped() { return folder_ / L"languages"; }
    Path Installed(int locale = 1031) {
        return state_.ResourcesFolder() / std::to_string(locale) /
               ("lang" + std::to_string(locale) + ".ini");
    }
    void Install(int locale = 1031) {
        InstallShippedLanguages(state_, Shipped());
        InstallShippedLanguage(state_, Shipped(), locale);
    }
    std::string Text(int id, int locale = 1031) {
        return Shown(modSect::ReadSetting(modLoadRes::kTextSection, std::to_wstring(id), L"none",
                                          Installed(locale)));
    }

    TempDir folder_;
    ProgramState state_;
    int age_ = 0;
};

TEST_F(InstallLanguages, AMissingFileIsCopiedAndABetterOneFollows) {
    Install();
    EXPECT_EQ(Text(105), "Hinzuf\xC3\xBCgen");
    const std::string first = test::ReadBytes(Installed());
    Ship(
        "[Wordhawk]\r\n115=Schlie\xC3\x9F"
        "en\r\n");
    Install();
    EXPECT_EQ(Text(115),
              "Schlie\xC3\x9F"
              "en");
    EXPECT_EQ(Text(105), "none");
    EXPECT_NE(test::ReadBytes(Installed()), first);
}

TEST_F(InstallLanguages, WhatTheUserChangedStays) {
    Install();
    ASSERT_TRUE(modSect::WriteSetting(modLoadRes::kTextSection, L"115", L"Weg", Installed()));
    const std::string changed = test::ReadBytes(Installed());
    Ship("[Wordhawk]\n115=Neu\n");
    Install();
    EXPECT_EQ(test::ReadBytes(Installed()), changed);

    for (const char* own : {"[Wordhawk]\r\n115=Raus\r\n", "", "\xFF\xFE", "; nothing", "105\r\n"}) {
        test::WriteBytes(Installed(), own);
        Ship("[Wordhawk]\n115=Neuer\n");
        Install();
        EXPECT_EQ(test::ReadBytes(Installed()), own);
    }
}

TEST_F(InstallLanguages, TheGeneratedEnglishFileGivesWay) {
    MakeFolder(state_.ResourcesFolder() / "1031");
    state_.SettingsFile = folder_ / L"Wordhawk.ini";
    state_.LanguageId = L"1031";
    test::FakeUi ui;
    modRcLangs::InitLanguage(state_, ui);
    ASSERT_EQ(Text(115), "Cancel");
    Install();
    EXPECT_EQ(Text(115), "Abbrechen");
}

TEST_F(InstallLanguages, AVariantGetsTheFileOfItsLanguageOnlyWhenItIsWanted) {
    Install(3079);
    EXPECT_EQ(Text(115, 3079), "Abbrechen");
    EXPECT_EQ(Text(115), "Abbrechen");
    EXPECT_FALSE(IsFile(Installed(2055)));
    Install(3081);
    EXPECT_FALSE(IsFile(Installed(3081))) << "no English file is shipped";
}

TEST_F(InstallLanguages, ReachTheProgramBeforeItChoosesItsLanguage) {
    ProgramOptions options;
    options.data_folder = state_.DataFolder;
    options.locale = 1031;
    options.shipped_languages = Shipped();
    options.shipped_dictionaries = folder_ / L"none";
    test::FakeUi ui;
    const Program program(options, ui);
    EXPECT_EQ(program.state.LanguageId, L"1031");
    EXPECT_EQ(LoadResText(program.state, 115), L"Abbrechen");
    EXPECT_EQ(LoadResText(program.state, 177), L"OK") << "what the file leaves out";
}

}  // namespace
}  // namespace wordhawk
