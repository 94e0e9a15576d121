#include "platform/replace_file.h"
#include "platform/single_writer.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace wordhawk {
namespace {

using test::ReadBytes;
using test::WriteBytes;

constexpr std::chrono::milliseconds kMoment{20};

/// Whether another process may lock the first byte of the file by the system's older locks, which
/// is what Wine does for the Windows program.
bool OthersMayLock(const Path& file) {
    const pid_t child = fork();
    if (child == 0) {
        const int descriptor = open(file.c_str(), O_RDWR);
        struct flock first_byte {};
        first_byte.l_type = F_WRLCK;
        first_byte.l_len = 1;
        _exit(fcntl(descriptor, F_SETLK, &first_byte) == 0 ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WEXITSTATUS(status) == 1;
}

TEST(PosixLockFile, KeepsOutTheWindowsProgram) {
    const test::TempDir folder;
    const Path file = folder.Folder() / ".wordhawk.lock";
    {
        const Result<SingleWriter> held = SingleWriter::Acquire(folder.Folder());
        ASSERT_TRUE(held);
        EXPECT_FALSE(OthersMayLock(file));
    }
    EXPECT_TRUE(OthersMayLock(file));
}

TEST(PosixLockFile, IsThatOfTheFolderWhereTheFileLies) {
    const test::TempDir folder;
    WriteBytes(folder / L"one" / "CUSTOM.DIC", "");
    ASSERT_TRUE(MakeFolder(folder / L"two"));
    std::filesystem::create_symlink("../one/CUSTOM.DIC", folder / L"two" / "CUSTOM.DIC");
    std::filesystem::create_directory_symlink(folder / L"one", folder / L"three");
    for (const char* way : {"one", "two", "three"}) {
        const Result<LockedFile> locked = LockForChange(folder.Folder() / way / "CUSTOM.DIC");
        ASSERT_TRUE(locked) << way;
        EXPECT_FALSE(SingleWriter::Acquire(folder / L"one", kMoment)) << way;
        EXPECT_TRUE(std::filesystem::equivalent(locked->path, folder / L"one" / "CUSTOM.DIC"));
    }
    std::filesystem::create_symlink("circle", folder / L"circle");
    EXPECT_FALSE(LockForChange(folder / L"circle"));
}

TEST(PosixLockFile, ALinkInItsPlaceIsNotFollowed) {
    const test::TempDir folder;
    const Path elsewhere = folder / L"elsewhere";
    ASSERT_TRUE(MakeFolder(folder / L"locked"));
    for (const bool dangling : {true, false}) {
        if (!dangling) WriteBytes(elsewhere, "of value");
        const Path lock = folder / L"locked" / ".wordhawk.lock";
        std::filesystem::create_symlink(elsewhere, lock);
        const Result<SingleWriter> locked = SingleWriter::Acquire(folder / L"locked");
        EXPECT_FALSE(locked);
        EXPECT_EQ(IsFile(elsewhere), !dangling);
        std::filesystem::remove(lock);
    }
    EXPECT_EQ(ReadBytes(elsewhere), "of value");
}

TEST(PosixLockFile, APipeInItsPlaceIsAnError) {
    const test::TempDir folder;
    ASSERT_EQ(mkfifo((folder.Folder() / ".wordhawk.lock").c_str(), 0600), 0);
    EXPECT_FALSE(SingleWriter::Acquire(folder.Folder()));
}

TEST(PosixFiles, PipesAreNoFiles) {
    const test::TempDir folder;
    const Path pipe = folder / L"pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const Result<std::string> bytes = ReadWholeFile(pipe);
    ASSERT_FALSE(bytes);
    EXPECT_EQ(bytes.error().what, L"this is a pipe or a device, not a file");
    EXPECT_FALSE(ReadWholeFile("/dev/zero"));
    EXPECT_TRUE(ReadWholeFile("/dev/null", Accepted::Streams)) << "named by the user";
}

}  // namespace
}  // namespace wordhawk
