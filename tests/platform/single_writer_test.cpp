#include "platform/single_writer.h"

#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace wordhawk
