#include "dict/dictionary_file.h"
#include "platform/folders.h"
#include "platform/single_writer.h"
#include "tests/support/random_text.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

namespace wordhawk {
namespace {

constexpr int kKills = 100;
constexpr int kWordsBefore = 5000;

pid_t StartWriter(const Path& folder) {
    const std::string program = ProgramFolder() / "word_writer";
    const pid_t child = fork();
    if (child == 0) {
        execl(program.c_str(), program.c_str(), folder.c_str(), "word4x", "0", nullptr);
        _exit(127);
    }
    return child;
}

ino_t InodeOf(const Path& file) {
    struct stat status {};
    return stat(file.c_str(), &status) == 0 ? status.st_ino : 0;
}

/// Whether the writer replaced the file before long.
bool WaitUntilReplaced(const Path& file, ino_t old) {
    for (int i = 0; i < 20'000; ++i) {
        if (InodeOf(file) != old) return true;
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
    return false;
}

std::size_t CountTemporaries(const Path& folder) {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        count += entry.path().extension() == ".tmp";
    }
    return count;
}

TEST(KilledWriter, LeavesTheOldFileOrTheNewOne) {
    const test::TempDir temp;
    const Path file = temp.Folder() / "Dictionarys" / "Custom" / "CUSTOM.DIC";
    std::string unsorted;
    const AnsiCodePage& page = AnsiCodePage::Get(1252);
    for (int i = 0; i < kWordsBefore; ++i)
        unsorted += EntryLine(L"word" + std::to_wstring(i), page);
    const std::string before = dictionary_edit::SortedDistinct(unsorted, page);

    test::Random random(3);
    std::size_t left_behind = 0;
    for (int kill_number = 0; kill_number < kKills; ++kill_number) {
        test::WriteBytes(file, before);
        const ino_t old = InodeOf(file);
        const pid_t child = StartWriter(temp.Folder());
        ASSERT_GT(child, 0);
        const bool at_work = WaitUntilReplaced(file, old);
        std::this_thread::sleep_for(std::chrono::microseconds(random.Below(15'000)));
        kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(at_work && WIFSIGNALED(status)) << "the writer stood still or ended by itself";

        // At most one word more than before; all others and their order as they were.
        std::string after = test::ReadBytes(file);
        ASSERT_EQ(dictionary_edit::SortedDistinct(after, page), after) << "kill " << kill_number;
        const std::size_t added = after.find("\r\nword4x");
        if (added != std::string::npos) after.erase(added, after.find("\r\n", added + 2) - added);
        ASSERT_TRUE(after == before) << "kill " << kill_number;
        const std::size_t temporaries = CountTemporaries(file.parent_path());
        ASSERT_LE(temporaries, 1u) << "the next writer sweeps up";
        left_behind += temporaries;
    }
    EXPECT_GT(left_behind, 0u) << "no kill came while a file was being written";
    ASSERT_TRUE(SingleWriter::Acquire(file.parent_path()));
    EXPECT_EQ(CountTemporaries(file.parent_path()), 0u);
}

}  // namespace
}  // namespace wordhawk
