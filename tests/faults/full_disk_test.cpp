#include "dict/build.h"
#include "dict/custom_words.h"
#include "dict/import.h"
#include "tests/support/dictionaries.h"
#include "tests/support/fake_services.h"

#include <gtest/gtest.h>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace wordhawk {
namespace {

using test::Dictionaries;
using test::ReadBytes;

constexpr std::size_t kDiskBytes = 256 * 1024;

/// Makes `folder` a disk of kDiskBytes; without the right to mount, no file may pass half of that.
class SmallDisk {
  public:
    explicit SmallDisk(const Path& folder) : folder_(folder) {
        is_mounted_ = mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=256k") == 0;
        if (is_mounted_) return;
        old_handler_ = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &old_limit_);
        const rlimit small{kDiskBytes / 2, old_limit_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        if (is_mounted_) {
            umount(folder_.c_str());
        } else {
            setrlimit(RLIMIT_FSIZE, &old_limit_);
            std::signal(SIGXFSZ, old_handler_);
        }
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

  private:
    Path folder_;
    bool is_mounted_ = false;
    rlimit old_limit_{};
    void (*old_handler_)(int) = nullptr;
};

/// Sorted entry lines of about `bytes` bytes in all.
std::string EntriesOfSize(std::size_t bytes) {
    std::string lines;
    for (int i = 100'000; lines.size() < bytes; ++i) {
        lines += EntryLine(L"word" + std::to_wstring(i), AnsiCodePage::Get(1252));
    }
    return lines;
}

void ExpectNoFileBut(const Path& folder, std::vector<std::string> names) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const std::string name = entry.path().filename();
        const bool expected = std::find(names.begin(), names.end(), name) != names.end();
        EXPECT_TRUE(expected || name.ends_with(".lock")) << name << " was left behind";
    }
}

TEST(FullDisk, AddingGivesAnErrorAndLeavesTheFileWhole) {
    Dictionaries data;
    const Path custom = data.state.CustomFolder();
    const SmallDisk disk(custom);
    // Fits twice, but not with the new words added.
    const std::string before = EntriesOfSize(kDiskBytes / 2 - 10'000);
    test::WriteBytes(custom / "CUSTOM.DIC", before);
    std::vector<std::wstring> words;
    for (int i = 0; i < 5000; ++i) words.push_back(L"another" + std::to_wstring(i));
    Path path;
    test::FakeProgress progress;
    const Result<void> added =
        AddWordsToDictionary(data.store, words, AddTarget::ActiveCustom, path, progress);
    ASSERT_FALSE(added);
    EXPECT_EQ(added.error().where, custom / "CUSTOM.DIC");
    EXPECT_TRUE(ReadBytes(custom / "CUSTOM.DIC") == before);
    ExpectNoFileBut(custom, {"CUSTOM.DIC"});

    EXPECT_TRUE(AddWordToDictionary(data.store, L"small", AddTarget::ActiveCustom, path))
        << "what fits is added";
    EXPECT_EQ(ReadBytes(custom / "CUSTOM.DIC").size(), before.size() + 13);
}

TEST(FullDisk, ImportGivesAnErrorAndMakesNoFile) {
    Dictionaries data;
    const Path source = data.folder / L"source.dic";
    test::WriteBytes(source, EntriesOfSize(2 * kDiskBytes));
    const Path custom = data.state.CustomFolder();
    const SmallDisk disk(custom);
    test::FakeProgress progress;
    test::FakeUi ui;
    EXPECT_FALSE(
        ImportDictionary(data.store, DelimiterFlagStore(), source, L"new.dic", progress, ui));
    ExpectNoFileBut(custom, {});
    EXPECT_EQ(ui.busy_depth, 0);
}

TEST(FullDisk, BuildingGivesAnError) {
    const test::TempDir temp;
    const Path list = temp / L"list.txt";
    test::WriteBytes(list, EntriesOfSize(4 * kDiskBytes));
    std::string words = ReadBytes(list);
    std::erase(words, ',');
    test::WriteBytes(list, words);
    const Path output = temp / L"out";
    std::filesystem::create_directories(output);
    const SmallDisk disk(output);
    EXPECT_FALSE(BuildDictionary({&list, 1}, output, {}));
    ExpectNoFileBut(output, {});
}

TEST(UnreadableFile, IsNeverOverwritten) {
    Dictionaries data;
    const Path file = data.state.CustomFolder() / "CUSTOM.DIC";
    test::WriteBytes(file, "hello,72400\r\n");
    using std::filesystem::perms;
    std::filesystem::permissions(file, perms::none);
    std::filesystem::permissions(data.state.CustomFolder(), perms::all);
    const pid_t child = fork();
    if (child == 0) {
        // The superuser may read everything; somebody else may not.
        if (geteuid() == 0 && setuid(65534) != 0) _exit(3);
        Path path;
        const bool refused =
            !AddWordToDictionary(data.store, L"new", AddTarget::ActiveCustom, path) &&
            !RemoveWordFromCustomDictionary(data.store, L"hello", {});
        _exit(refused ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    std::filesystem::permissions(file, perms::owner_read | perms::owner_write);
    EXPECT_EQ(ReadBytes(file), "hello,72400\r\n");
    ExpectNoFileBut(data.state.CustomFolder(), {"CUSTOM.DIC"});
}

}  // namespace
}  // namespace wordhawk
