#include "app/prepare_folders.h"
#include "lang/built_in_texts.h"
#include "lang/modLoadRes.h"
#include "lang/modRcLangs.h"
#include "platform/modSect.h"
#include "tests/support/fake_services.h"
#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>

namespace wordhawk {
namespace {

using modRcLangs::InitLanguage;
using testing::ElementsAre;

class LanguageChoice : public testing::Test {
  protected:
    LanguageChoice() {
        state_.DataFolder = folder_.Folder();
        state_.LocaleOverride = 1033;
        PrepareFolders(state_);
    }
    void Choose(std::wstring_view language) {
        ASSERT_TRUE(modSect::WriteSetting(L"Settings", L"Language", language, state_.SettingsFile));
    }
    std::wstring Stored() const {
        return modSect::ReadSetting(L"Settings", L"Language", L"none", state_.SettingsFile);
    }
    Path Resources(std::wstring_view name) const {
        return folder_ / L"Resources" / PathFromText(name);
    }
    void Install(std::wstring_view name, const std::string& bytes) {
        test::WriteBytes(Resources(name), bytes);
    }

    test::TempDir folder_;
    ProgramState state_;
    test::FakeUi ui_;
};

TEST_F(LanguageChoice, EmptySettingMeansTheSystemsLanguage) {
    state_.LocaleOverride = 1031;
    PrepareFolders(state_);
    Install(L"1031/lang1031.ini", "[Wordhawk]\r\n115=Abbrechen\r\n");
    EXPECT_EQ(InitLanguage(state_, ui_), L"1031");
    EXPECT_EQ(state_.LanguageId, L"1031");
    EXPECT_EQ(state_.LanguageFileBase, L"lang1031");
    EXPECT_EQ(state_.LanguageFile, Resources(L"1031/lang1031.ini"));
    EXPECT_EQ(state_.LanguageDictFolder, folder_.Folder() / "Dictionarys" / "1031");
    EXPECT_EQ(state_.HelpFile, TextFromPath(folder_.Folder()) + L"\\Wordhawk.chm::/German.txt");
    EXPECT_EQ(Stored(), L"1031");
    EXPECT_EQ(modLoadRes::LoadResText(state_, 115), L"Abbrechen");
    EXPECT_EQ(test::ReadBytes(state_.LanguageFile), "[Wordhawk]\r\n115=Abbrechen\r\n")
        << "not generated anew";
}

TEST_F(LanguageChoice, MissingFileIsGeneratedFromTheBuiltInTexts) {
    ASSERT_TRUE(MakeFolder(Resources(L"1036")));
    Choose(L"1036");
    EXPECT_EQ(InitLanguage(state_, ui_), L"1036");
    EXPECT_EQ(state_.HelpFile, TextFromPath(folder_.Folder()) + L"\\Wordhawk.chm::/French.txt");
    EXPECT_TRUE(IsFolder(folder_.Folder() / "Dictionarys" / "1036")) << "made for the new language";
    EXPECT_EQ(ui_.beeps, 0);

    std::string expected = "[Wordhawk]\r\n";
    for (int id = 100; id <= 500; ++id) {
        const std::wstring_view text = BuiltInText(id);
        if (!text.empty()) expected += std::to_string(id) + "=" + ToUtf8(text) + "\r\n";
    }
    EXPECT_EQ(test::ReadBytes(Resources(L"1036/lang1036.ini")), expected);
    for (int id = 100; id <= 500; ++id) {
        EXPECT_EQ(modLoadRes::LoadResText(state_, id), BuiltInText(id)) << id;
    }
}

TEST_F(LanguageChoice, WithoutFolderItIsEnglish) {
    Choose(L"1036");
    EXPECT_EQ(InitLanguage(state_, ui_), L"1033");
    EXPECT_EQ(Stored(), L"1033");
    EXPECT_EQ(state_.LanguageId, L"1033");
    EXPECT_EQ(state_.LanguageFileBase, L"lang1033");
    EXPECT_EQ(state_.LanguageFile, Resources(L"1036/lang1036.ini")) << "left as it was tried";
    EXPECT_EQ(state_.LanguageDictFolder, folder_.Folder() / "Dictionarys" / "1033");
    EXPECT_EQ(state_.HelpFile, TextFromPath(folder_.Folder()) + L"\\Wordhawk.chm::/English.txt");
    EXPECT_FALSE(IsFolder(Resources(L"1036")));
    EXPECT_FALSE(IsFolder(folder_.Folder() / "Dictionarys" / "1036"));
    EXPECT_EQ(modLoadRes::LoadResText(state_, 115), L"Cancel");
}

// A folder in place of the language file cannot be read, nor can a file be generated there.
TEST_F(LanguageChoice, EnglishFileIsLookedForInTheWishedFolder) {
    ASSERT_TRUE(MakeFolder(Resources(L"1036/lang1036.ini")));
    Install(L"1036/lang1033.ini", "[Wordhawk]\r\n115=Cancel it\r\n");
    Choose(L"1036");
    EXPECT_EQ(InitLanguage(state_, ui_), L"1033");
    EXPECT_EQ(state_.LanguageFile, Resources(L"1033/lang1033.ini"));
    EXPECT_EQ(Stored(), L"1033");
}

struct SettingCase {
    const wchar_t* setting;
    const wchar_t* language_id;
    const wchar_t* result;
    const char* reason;
};

TEST_F(LanguageChoice, WhatCountsAsALocaleNumber) {
    ASSERT_TRUE(MakeFolder(Resources(L"1031")));
    ASSERT_TRUE(MakeFolder(Resources(L"1036")));
    const SettingCase cases[] = {
        {L"abc", L"xyz", L"1033", "neither is a number"},
        {L"abc", L"1036", L"1036", "the locale in force stands in"},
        {L"", L"1036", L"1036", "so it does for an empty setting"},
        {L"", L"", L"1033", "nothing at all"},
        {L"\" 1031 \"", L"1036", L"1031", "blanks do not matter"},
        {L"01031", L"1036", L"1031", "leading zeros neither"},
        {L"0", L"1036", L"1033", "a number without a folder"},
        {L"-1", L"1036", L"1033", "a negative number has no folder"},
        {L"99999999999", L"1036", L"1036", "too large to be a number"},
        {L"../1031", L"1036", L"1036", "a path is no number"},
    };
    for (const SettingCase& row : cases) {
        Choose(row.setting);
        state_.LanguageId = row.language_id;
        EXPECT_EQ(InitLanguage(state_, ui_), row.result) << row.reason;
        EXPECT_EQ(Stored(), row.result) << row.reason;
    }
}

TEST_F(LanguageChoice, ExistenceTestSetsTheFileName) {
    Install(L"1040/lang1040.ini", "");
    EXPECT_TRUE(modRcLangs::LanguageFileExists(state_, L"1040"));
    EXPECT_EQ(state_.LanguageFileBase, L"lang1040");
    EXPECT_FALSE(modRcLangs::LanguageFileExists(state_, L"1041"));
    EXPECT_EQ(state_.LanguageFileBase, L"lang1041");
}

TEST_F(LanguageChoice, ListHoldsInstalledLanguagesOnly) {
    Install(L"1040/lang1040.ini", "");
    Install(L"1062/lang1062.ini", "");
    Install(L"1050/lang1050.ini", "");
    Install(L"1041/lang1040.ini", "");
    Install(L"abc/langabc.ini", "");
    Install(L"1055", "a file, no folder");
    std::vector<std::wstring> names;
    std::vector<int> locales;
    for (const modRcLangs::LanguageEntry& entry : modRcLangs::FillLanguageList(state_)) {
        names.push_back(entry.name);
        locales.push_back(entry.locale);
    }
    EXPECT_THAT(names, ElementsAre(L"Italian", L"English", L"Latin"));
    EXPECT_THAT(locales, ElementsAre(1040, 1050, 1062));
}

TEST_F(LanguageChoice, SecondStartChangesNothing) {
    InitLanguage(state_, ui_);
    const std::string settings = test::ReadBytes(state_.SettingsFile);
    const std::string texts = test::ReadBytes(state_.LanguageFile);
    ProgramState again;
    again.DataFolder = folder_.Folder();
    again.LocaleOverride = 1031;
    PrepareFolders(again);
    EXPECT_EQ(InitLanguage(again, ui_), L"1033") << "the stored choice beats the system's locale";
    EXPECT_EQ(test::ReadBytes(state_.SettingsFile), settings);
    EXPECT_EQ(test::ReadBytes(state_.LanguageFile), texts);
}

}  // namespace
}  // namespace wordhawk
