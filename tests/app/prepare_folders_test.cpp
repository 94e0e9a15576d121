#include "app/prepare_folders.h"

#include "platform/folders.h"
#include "platform/locale_ids.h"
#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>

namespace wordhawk {
namespace {

using testing::ElementsAre;

TEST(PrepareFolders, MakesTheTreeUnderAGivenFolder) {
    const test::TempDir folder;
    ProgramState state;
    state.DataFolder = folder.Folder() / "not" / "there" / "yet";
    state.LocaleOverride = 1031;
    PrepareFolders(state);
    EXPECT_THAT(ListFolders(state.DataFolder),
                ElementsAre(L"Dictionarys", L"Resources", L"Saves", L"Sounds"));
    EXPECT_THAT(ListFolders(state.DataFolder / "Dictionarys"),
                ElementsAre(L"1031", L"1033", L"Custom"));
    EXPECT_THAT(ListFolders(state.DataFolder / "Resources"), ElementsAre(L"1031", L"1033"));
    EXPECT_EQ(state.LanguageId, L"1031");
    EXPECT_EQ(state.SettingsFile, state.DataFolder / "Wordhawk.ini");
    EXPECT_EQ(state.LanguageDictFolder, state.DataFolder / "Dictionarys" / "1031");
    EXPECT_TRUE(state.FoldersReady);
}

TEST(PrepareFolders, EnglishHasNoSecondFolderAndFilesStay) {
    const test::TempDir folder;
    test::WriteBytes(folder / L"Dictionarys/1033/ab.dic", "x");
    ProgramState state;
    state.DataFolder = folder.Folder();
    state.LocaleOverride = 1033;
    PrepareFolders(state);
    PrepareFolders(state);
    EXPECT_THAT(ListFolders(state.DataFolder / "Dictionarys"), ElementsAre(L"1033", L"Custom"));
    EXPECT_EQ(test::ReadBytes(folder / L"Dictionarys/1033/ab.dic"), "x");
}

TEST(PrepareFolders, AsksTheSystemForItsLocale) {
    const test::TempDir folder;
    ProgramState state;
    state.DataFolder = folder.Folder();
    PrepareFolders(state);
    EXPECT_EQ(state.LanguageId, std::to_wstring(SystemDefaultLocale()));
}

TEST(PrepareFolders, StartUpGoesOnWhereNothingCanBeMade) {
    const test::TempDir folder;
    test::WriteBytes(folder / L"file", "x");
    ProgramState state;
    state.DataFolder = folder / L"file";
    state.LocaleOverride = 1033;
    PrepareFolders(state);
    EXPECT_TRUE(state.FoldersReady);
    EXPECT_EQ(test::ReadBytes(folder / L"file"), "x");
}

TEST(PrepareFolders, DataFolderIsTheUsers) {
    const Path data = ComputeDataFolder();
    EXPECT_EQ(data.filename(), "Wordhawk");
    EXPECT_EQ(data.parent_path().parent_path(), SpecialFolder(kApplicationDataFolder));
}

}  // namespace
}  // namespace wordhawk
