#include "dict/custom_words.h"
#include "platform/folders.h"
#include "tests/support/dictionaries.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <thread>

namespace wordhawk {
namespace {

using test::Dictionaries;
using test::ReadBytes;

constexpr int kWordsEach = 1000;

/// A data folder in memory where the system has one: thousands of flushes to a disk take minutes.
class DataFolder {
  public:
    DataFolder() {
        Path parent = TemporaryFolder();
        for (const char* memory : {"/dev/shm", "Z:/dev/shm"}) {
            if (IsFolder(memory)) parent = memory;
        }
        folder_ = parent / ("wordhawk-writers-" + std::to_string(std::random_device{}()));
        std::filesystem::create_directories(folder_ / "Dictionarys" / "Custom");
    }
    ~DataFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    DataFolder(const DataFolder&) = delete;
    DataFolder& operator=(const DataFolder&) = delete;

    const Path& Folder() const { return folder_; }
    Path CustomFolder() const { return folder_ / "Dictionarys" / "Custom"; }

  private:
    Path folder_;
};

std::string WriterCommand(const Path& folder, const std::string& prefix) {
    Path writer = ProgramFolder() / "word_writer";
    writer += ProgramFile().extension();
    return ToUtf8(TextFromPath(writer)) + " " + ToUtf8(TextFromPath(folder)) + " " + prefix + " " +
           std::to_string(kWordsEach);
}

TEST(TwoWriters, LoseNoWord) {
    const DataFolder data;
    const std::vector<std::string> prefixes = {"left", "right"};
    std::vector<int> exits(prefixes.size(), -1);
    std::vector<std::thread> writers;
    for (std::size_t i = 0; i < prefixes.size(); ++i) {
        writers.emplace_back(
            [&, i] { exits[i] = std::system(WriterCommand(data.Folder(), prefixes[i]).c_str()); });
    }
    for (std::thread& writer : writers) writer.join();
    EXPECT_EQ(exits, (std::vector<int>{0, 0}));

    const std::string bytes = ReadBytes(data.CustomFolder() / "CUSTOM.DIC");
    const DictionaryFile file(bytes);
    for (const std::string& prefix : prefixes) {
        for (int number = 0; number < kWordsEach; ++number) {
            std::string word = prefix;
            for (int i = 0, rest = number; i < 4; ++i, rest /= 10)
                word += static_cast<char>('a' + rest % 10);
            ASSERT_TRUE(file.Contains(word, EntryForms::KeyedOnly)) << word;
        }
    }
    // The smallest word may stand there twice: on the first line it is not seen when it comes
    // again, but here each word comes once.
    EXPECT_EQ(file.CountEntries(), 2u * kWordsEach);
    EXPECT_EQ(dictionary_edit::SortedDistinct(bytes, AnsiCodePage::Get(1252)), bytes) << "in order";
    for (const auto& entry : std::filesystem::directory_iterator(data.CustomFolder())) {
        EXPECT_NE(entry.path().extension(), ".tmp") << "left behind";
    }
}

TEST(ReadOnlyFile, GivesAnErrorAndStaysAsItIs) {
    Dictionaries data;
    const std::string old = "hello,72400\r\nzebra,90160\r\n";
    data.WriteCustom(L"CUSTOM.DIC", old);
    const Path file = data.state.CustomFolder() / "CUSTOM.DIC";
    using std::filesystem::perms;
    const perms write = perms::owner_write | perms::group_write | perms::others_write;
    std::filesystem::permissions(file, write, std::filesystem::perm_options::remove);
    Path path;
    const Result<void> added =
        AddWordToDictionary(data.store, L"new", AddTarget::ActiveCustom, path);
    const Removal removed = RemoveWordFromDictionaries(data.store, L"zebra");
    std::filesystem::permissions(file, write, std::filesystem::perm_options::add);

    ASSERT_FALSE(added);
    EXPECT_EQ(added.error().where, file);
    EXPECT_FALSE(added.error().what.empty());
    EXPECT_EQ(removed.file, Path());
    ASSERT_EQ(removed.failures.size(), 1u);
    EXPECT_EQ(removed.failures[0].where, file);
    EXPECT_EQ(ReadBytes(file), old);
    for (const auto& entry : std::filesystem::directory_iterator(data.state.CustomFolder())) {
        EXPECT_NE(entry.path().extension(), ".tmp") << "left behind";
    }
}

}  // namespace
}  // namespace wordhawk
