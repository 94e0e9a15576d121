#include "ui/framework/placement_store.h"

#include "platform/modSect.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk::test {
namespace {

TEST(PlacementStore, KeepsThePlacementInAFileBesideWhatIsThere) {
    const TempDir folder;
    const Path file = folder / L"Wordhawk.ini";
    WriteBytes(file, "[Settings]\r\nSaveBack=1\r\n");
    const PlacementStore store{file};
    EXPECT_FALSE(store.Load());
    store.Save({{-10, 20, 630, 520}, 144, true});
    const std::optional<SavedPlacement> loaded = store.Load();
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->bounds.left, -10);
    EXPECT_EQ(loaded->bounds.bottom, 520);
    EXPECT_EQ(loaded->dpi, 144);
    EXPECT_TRUE(loaded->maximized);
    EXPECT_EQ(modSect::ReadSetting(L"Settings", L"SaveBack", L"", file), L"1");
    modSect::WriteSetting(L"Window", L"Width", L"-5", file);
    EXPECT_FALSE(store.Load()) << "a window of no size";
}

TEST(PlacementStore, OnlyAPortableCopyKeepsItInItsSettings) {
    const TempDir folder;
    ProgramState state;
    state.DataFolder = folder / L"Data";
    state.SettingsFile = state.DataFolder / "Wordhawk.ini";
    MakeFolder(state.DataFolder);
    WriteBytes(folder / L"portable.ini", "");
    PlacementStore::Of(state, folder.Folder()).Save({{1, 2, 601, 502}, 96, false});
    EXPECT_EQ(modSect::ReadSetting(L"Window", L"Left", L"", state.SettingsFile), L"1");
    EXPECT_TRUE(PlacementStore::Of(state, folder.Folder()).Load());
    ASSERT_TRUE(DeleteOneFile(state.SettingsFile));
    WriteBytes(state.SettingsFile, "[Window]\r\nLeft=77\r\nTop=1\r\nWidth=777\r\nHeight=500\r\n");
    ASSERT_TRUE(DeleteOneFile(folder / L"portable.ini"));
    const auto loaded = PlacementStore::Of(state, folder.Folder()).Load();
    EXPECT_TRUE(!loaded || loaded->bounds.left != 77) << "from the registry, if at all";
}

}  // namespace
}  // namespace wordhawk::test
