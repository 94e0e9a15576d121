#include "platform/replace_file.h"

#include "platform/modSect.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <thread>

namespace wordhawk {
namespace {

using test::CountEntries;
using test::ReadBytes;
using test::WriteBytes;

TEST(PosixReplaceFile, PermissionBitsStay) {
    const test::TempDir folder;
    const Path file = folder / L"a.dic";
    for (const mode_t mode : {0600u, 0640u, 0666u, 0755u}) {
        WriteBytes(file, "old");
        ASSERT_EQ(chmod(file.c_str(), mode), 0);
        ASSERT_TRUE(ReplaceFileContents(file, "new"));
        struct stat status {};
        ASSERT_EQ(stat(file.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, mode);
    }
}

TEST(PosixReplaceFile, LinksStayLinks) {
    const test::TempDir folder;
    WriteBytes(folder / L"real" / "a.dic", "old");
    ASSERT_EQ(symlink("real/a.dic", (folder / L"relative").c_str()), 0);
    ASSERT_EQ(symlink((folder / L"relative").c_str(), (folder / L"chain").c_str()), 0);
    ASSERT_TRUE(ReplaceFileContents(folder / L"chain", "new"));
    EXPECT_EQ(ReadBytes(folder / L"real" / "a.dic"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / L"relative"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / L"chain"));

    ASSERT_EQ(symlink("real/later.dic", (folder / L"dangling").c_str()), 0);
    ASSERT_TRUE(ReplaceFileContents(folder / L"dangling", "made"));
    EXPECT_EQ(ReadBytes(folder / L"real" / "later.dic"), "made");

    ASSERT_EQ(symlink("circle", (folder / L"circle").c_str()), 0);
    EXPECT_FALSE(ReplaceFileContents(folder / L"circle", "x"));
}

TEST(PosixReplaceFile, AFileBeingWrittenIsNotSweptAway) {
    const test::TempDir folder;
    std::atomic<bool> done = false;
    std::thread sweeper([&] {
        while (!done) SweepTemporaries(folder.Folder());
    });
    std::size_t failures = 0;
    for (int i = 0; i < 200; ++i)
        failures += !ReplaceFileContents(folder / L"a.dic", std::string(50'000, 'x'));
    done = true;
    sweeper.join();
    EXPECT_EQ(failures, 0u);
    EXPECT_EQ(CountEntries(folder.Folder()), 1u);
}

TEST(PosixReplaceFile, DevicesAreNotReplaced) {
    const test::TempDir folder;
    const Path pipe = folder / L"pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(ReplaceFileContents(pipe, "x"));
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

/// A small file system of its own; only the superuser can make one.
class FullDisk : public testing::Test {
  protected:
    void SetUp() override {
        mounted_ = mount("tmpfs", folder_.Folder().c_str(), "tmpfs", 0, "size=64k") == 0;
        if (!mounted_) GTEST_SKIP() << "may not mount a file system here";
    }
    void TearDown() override {
        if (mounted_) umount(folder_.Folder().c_str());
    }
    test::TempDir folder_;
    bool mounted_ = false;
};

TEST_F(FullDisk, LeavesTheOldFileAndNothingElse) {
    const Path file = folder_ / L"a.dic";
    WriteBytes(file, "old");
    const Result<void> result = ReplaceFileContents(file, std::string(100'000, 'x'));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().what, L"the disk is full");
    EXPECT_EQ(ReadBytes(file), "old");
    EXPECT_EQ(CountEntries(folder_.Folder()), 1u);
}

TEST_F(FullDisk, SettingsStayWhole) {
    const Path file = folder_ / L"Wordhawk.ini";
    ASSERT_TRUE(modSect::WriteSetting(L"Settings", L"Language", L"1033", file));
    const std::string before = ReadBytes(file);
    EXPECT_FALSE(modSect::WriteSetting(L"Settings", L"k", std::wstring(100'000, L'x'), file));
    EXPECT_EQ(ReadBytes(file), before);
}

TEST(PosixReplaceFile, LimitOfTheFileSizeIsAnErrorNotADeath) {
    const test::TempDir folder;
    const Path file = folder / L"a.dic";
    WriteBytes(file, "old");
    rlimit old_limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old_limit), 0);
    const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = old_limit;
    small.rlim_cur = 4096;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const Result<void> result = ReplaceFileContents(file, std::string(10'000, 'x'));
    setrlimit(RLIMIT_FSIZE, &old_limit);
    std::signal(SIGXFSZ, old_handler);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().what, L"the file would grow too large");
    EXPECT_EQ(ReadBytes(file), "old");
    EXPECT_EQ(CountEntries(folder.Folder()), 1u);
}

}  // namespace
}  // namespace wordhawk
