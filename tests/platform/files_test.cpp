#include "platform/files.h"

#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>

namespace wordhawk {
namespace {

using test::WriteBytes;
using testing::ElementsAre;

TEST(Files, WholeFileIsItsBytes) {
    const test::TempDir folder;
    const std::string cases[] = {"", "x", std::string("a\0b\r\n\x1A\xFF", 7),
                                 std::string(1'000'000, 'y')};
    for (const std::string& bytes : cases) {
        WriteBytes(folder / L"f", bytes);
        EXPECT_EQ(ReadWholeFile(folder / L"f"), bytes);
    }
}

TEST(Files, ReadingSaysWhyNot) {
    const test::TempDir folder;
    EXPECT_EQ(ReadWholeFile(folder / L"none").error().what, L"the file does not exist");
    EXPECT_EQ(ReadWholeFile(folder.Folder()).error().what, L"this is a folder, not a file");
    EXPECT_EQ(ReadWholeFile(folder / L"none").error().where, folder / L"none");
}

TEST(Files, FoldersAreNoFiles) {
    const test::TempDir folder;
    WriteBytes(folder / L"f", "");
    EXPECT_TRUE(IsFile(folder / L"f"));
    EXPECT_FALSE(IsFile(folder.Folder()));
    EXPECT_FALSE(IsFile(folder / L"none"));
    EXPECT_FALSE(IsFile(Path()));
    EXPECT_TRUE(IsFolder(folder.Folder()));
    EXPECT_FALSE(IsFolder(folder / L"f"));
    EXPECT_FALSE(IsFolder(Path()));
}

TEST(Files, ListsAreSortedByUpperCaseAndFiltered) {
    const test::TempDir folder;
    for (const wchar_t* name :
         {L"b.DIC", L"a.dic", L"_x.dic", L"C.Dic", L"d.dic2", L"e.txt", L"dic"}) {
        WriteBytes(folder / name, "");
    }
    for (const wchar_t* name : {L"1036", L"1033", L"sub.dic"})
        ASSERT_TRUE(MakeFolder(folder / name));
    EXPECT_THAT(ListFiles(folder.Folder(), L".dic"),
                ElementsAre(L"a.dic", L"b.DIC", L"C.Dic", L"_x.dic"));
    EXPECT_THAT(ListFolders(folder.Folder()), ElementsAre(L"1033", L"1036", L"sub.dic"));
    EXPECT_THAT(ListFiles(folder / L"none", L".dic"), ElementsAre());
}

TEST(Files, FoldersAreMadeWithTheirParents) {
    const test::TempDir folder;
    const Path deep = folder / L"a/\x4e01/c";
    EXPECT_TRUE(MakeFolder(deep));
    EXPECT_TRUE(MakeFolder(deep)) << "there already";
    EXPECT_TRUE(IsFolder(deep));
    WriteBytes(folder / L"file", "");
    EXPECT_FALSE(MakeFolder(folder / L"file" / "sub")) << "a file is in the way";
    EXPECT_FALSE(MakeFolder(Path()));
}

TEST(Files, DeletingRefusesFoldersAndReadOnlyFiles) {
    const test::TempDir folder;
    const Path file = folder / L"f";
    WriteBytes(file, "x");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    EXPECT_EQ(DeleteOneFile(file).error().what, L"the file is read-only");
    EXPECT_TRUE(IsFile(file));
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    EXPECT_TRUE(DeleteOneFile(file));
    EXPECT_FALSE(IsFile(file));
    EXPECT_EQ(DeleteOneFile(file).error().what, L"the file does not exist");
    EXPECT_FALSE(DeleteOneFile(folder.Folder()));
}

TEST(Files, PathsKeepTheirText) {
    for (const wchar_t* text : {L"a/b.txt", L"C:\\x\\y.txt", L"\x4e01\x0142 z", L""}) {
        EXPECT_EQ(TextFromPath(PathFromText(text)), text);
    }
    EXPECT_EQ(PathForMessage(PathFromText(L"\x0142")), "\xC5\x82");
}

}  // namespace
}  // namespace wordhawk
