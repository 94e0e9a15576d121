#include "app/program_folders.h"

#include "app/prepare_folders.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

TEST(ProgramFolders, APortableCopyKeepsItsDataBesideItself) {
    const test::TempDir program;
    EXPECT_EQ(PortableDataFolder(program.Folder()), Path());
    EXPECT_EQ(ComputeDataFolder(program.Folder()), ComputeDataFolder());
    test::WriteBytes(program / L"portable.ini", "");
    EXPECT_EQ(PortableDataFolder(program.Folder()), program / L"Data");
    EXPECT_EQ(ComputeDataFolder(program.Folder()), program / L"Data");
}

TEST(ProgramFolders, ShippedFilesLieBesideTheProgramOrUnderShare) {
    const test::TempDir root;
    const Path bin = root / L"bin";
    EXPECT_EQ(ShippedFolder(bin, "languages"), bin / "languages") << "neither is there";
    MakeFolder(root / L"share" / "wordhawk" / "languages");
    EXPECT_EQ(ShippedFolder(bin, "languages"), root / L"share" / "wordhawk" / "languages");
    MakeFolder(bin / "languages");
    EXPECT_EQ(ShippedFolder(bin, "languages"), bin / "languages");
}

}  // namespace
}  // namespace wordhawk
