#include "platform/single_writer.h"

#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace wordhawk {
namespace {

using test::ReadBytes;
using test::WriteBytes;

TEST(SingleWriter, OneAtATime) {
    const test::TempDir folder;
    const Path file = folder / L"count";
    WriteBytes(file, "0");
    constexpr int kThreads = 4;
    constexpr int kRounds = 50;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < kRounds; ++i) {
                const Result<SingleWriter> lock = SingleWriter::Acquire(folder.Folder());
                ASSERT_TRUE(lock);
                const int count = std::stoi(ReadBytes(file));
                std::this_thread::yield();
                WriteBytes(file, std::to_string(count + 1));
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(ReadBytes(file), std::to_string(kThreads * kRounds));
}

TEST(SingleWriter, FoldersAreIndependent) {
    const test::TempDir one;
    const test::TempDir other;
    const Result<SingleWriter> first = SingleWriter::Acquire(one.Folder());
    const Result<SingleWriter> second = SingleWriter::Acquire(other.Folder());
    EXPECT_TRUE(first);
    EXPECT_TRUE(second);
}

TEST(SingleWriter, MovingKeepsTheLockAndDestructionLetsGo) {
    const test::TempDir folder;
    std::atomic<bool> acquired = false;
    std::thread waiting;
    {
        Result<SingleWriter> lock = SingleWriter::Acquire(folder.Folder());
        ASSERT_TRUE(lock);
        const SingleWriter moved = std::move(*lock);
        waiting = std::thread([&] {
            const Result<SingleWriter> mine = SingleWriter::Acquire(folder.Folder());
            acquired = mine.has_value();
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        EXPECT_FALSE(acquired);
    }
    waiting.join();
    EXPECT_TRUE(acquired);
}

TEST(SingleWriter, MissingFolderIsAnError) {
    const test::TempDir folder;
    const Result<SingleWriter> lock = SingleWriter::Acquire(folder / L"none");
    ASSERT_FALSE(lock);
    EXPECT_EQ(lock.error().what, L"the folder does not exist");
}

TEST(SingleWriter, LockFileIsNoDictionary) {
    const test::TempDir folder;
    const Result<SingleWriter> lock = SingleWriter::Acquire(folder.Folder());
    EXPECT_TRUE(ListFiles(folder.Folder(), L".dic").empty());
}

constexpr std::chrono::milliseconds kMoment{20};

TEST(SingleWriter, WaitsNoLongerThanItsLimit) {
    const test::TempDir folder;
    const Result<SingleWriter> held = SingleWriter::Acquire(folder.Folder());
    const Result<SingleWriter> other = SingleWriter::Acquire(folder.Folder(), kMoment);
    ASSERT_FALSE(other);
    EXPECT_EQ(other.error().where, folder.Folder());
    EXPECT_NE(other.error().what.find(L"locked"), std::wstring::npos);
}

TEST(SingleWriter, DeletingTheLockFileLetsNobodyIn) {
    const test::TempDir folder;
    const Result<SingleWriter> held = SingleWriter::Acquire(folder.Folder());
    ASSERT_TRUE(held);
    // Where the system allows it at all.
    std::error_code refused;
    std::filesystem::remove(folder.Folder() / ".wordhawk.lock", refused);
    EXPECT_FALSE(SingleWriter::Acquire(folder.Folder(), kMoment));
}

TEST(SingleWriter, SweepsWhatKilledProgramsLeft) {
    const test::TempDir folder;
    WriteBytes(folder / L".wordhawk-1234-1.tmp", "left by an earlier version");
    WriteBytes(folder / L".wordhawk-abcdefgh234567ab.tmp", "left");
    WriteBytes(folder / L"wordhawk.tmp", "a user's");
    WriteBytes(folder / L".wordhawk-.txt", "a user's");
    ASSERT_TRUE(SingleWriter::Acquire(folder.Folder()));
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Folder()))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names,
              (std::vector<std::string>{".wordhawk-.txt", ".wordhawk.lock", "wordhawk.tmp"}));
}

}  // namespace
}  // namespace wordhawk
