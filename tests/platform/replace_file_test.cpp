#include "platform/replace_file.h"

#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace wordhawk {
namespace {

using test::CountEntries;
using test::ReadBytes;
using test::WriteBytes;

TEST(ReplaceFile, MakesAndReplaces) {
    const test::TempDir folder;
    const Path file = folder / L"a.dic";
    const std::string binary("a\0\r\n\xFF", 5);
    ASSERT_TRUE(ReplaceFileContents(file, binary));
    EXPECT_EQ(ReadBytes(file), binary);
    ASSERT_TRUE(ReplaceFileContents(file, ""));
    EXPECT_EQ(ReadBytes(file), "");
    EXPECT_EQ(CountEntries(folder.Folder()), 1u) << "no temporary file stays";
}

TEST(ReplaceFile, NamesOutsideTheAnsiPage) {
    const test::TempDir folder;
    const Path file = folder / L"\x4e01 \x00E9\x0142.dic";
    ASSERT_TRUE(ReplaceFileContents(file, "x"));
    EXPECT_EQ(*ReadWholeFile(file), "x");
    EXPECT_EQ(ListFiles(folder.Folder(), L".DIC"),
              std::vector<std::wstring>{L"\x4e01 \x00E9\x0142.dic"});
}

TEST(ReplaceFile, ReadOnlyFileIsRefused) {
    const test::TempDir folder;
    const Path file = folder / L"a.dic";
    WriteBytes(file, "old");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    const Result<void> result = ReplaceFileContents(file, "new");
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().what, L"the file is read-only");
    EXPECT_EQ(result.error().where, file);
    EXPECT_EQ(ReadBytes(file), "old");
    EXPECT_EQ(CountEntries(folder.Folder()), 1u);
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
}

TEST(ReplaceFile, SaysWhatIsInTheWay) {
    const test::TempDir folder;
    ASSERT_TRUE(MakeFolder(folder / L"sub"));
    const Result<void> onto_folder = ReplaceFileContents(folder / L"sub", "x");
    ASSERT_FALSE(onto_folder);
    EXPECT_EQ(onto_folder.error().what, L"this is a folder, not a file");
    const Result<void> nowhere = ReplaceFileContents(folder / L"none" / "a.dic", "x");
    ASSERT_FALSE(nowhere);
    EXPECT_EQ(nowhere.error().what, L"the folder does not exist");
}

TEST(ReplaceFile, ReadersSeeOneVersionOrTheOther) {
    const test::TempDir folder;
    const Path file = folder / L"a.dic";
    const std::string versions[] = {std::string(200'000, 'a'), std::string(300'000, 'b')};
    ASSERT_TRUE(ReplaceFileContents(file, versions[0]));
    std::atomic<bool> done{false};
    std::atomic<int> failures{0};
    std::thread writer([&] {
        for (int i = 1; i <= 40; ++i) {
            if (!ReplaceFileContents(file, versions[i % 2])) ++failures;
        }
        done = true;
    });
    int torn = 0;
    while (!done) {
        const Result<std::string> seen = ReadWholeFile(file);
        if (!seen || (*seen != versions[0] && *seen != versions[1])) ++torn;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    writer.join();
    EXPECT_EQ(torn, 0);
    EXPECT_EQ(failures, 0);
}

}  // namespace
}  // namespace wordhawk
