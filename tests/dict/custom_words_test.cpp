#include "dict/custom_words.h"

#include "tests/support/dictionaries.h"
#include "tests/support/fake_services.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::Dictionaries;
using test::FakeProgress;
using test::ReadBytes;
using test::WriteBytes;

Path CustomFile(const Dictionaries& data) { return data.state.CustomFolder() / "CUSTOM.DIC"; }

std::map<std::wstring, std::string> AllFiles(const Dictionaries& data) {
    std::map<std::wstring, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(data.folder.Folder())) {
        if (EqualIgnoringCase(TextFromPath(entry.path().extension()), L".dic")) {
            files[TextFromPath(entry.path().lexically_relative(data.folder.Folder()))] =
                ReadBytes(entry.path());
        }
    }
    return files;
}

TEST(AddWord, GoesToItsTarget) {
    Dictionaries data;
    Path path;
    ASSERT_TRUE(AddWordToDictionary(data.store, L"Hello", AddTarget::ActiveCustom, path));
    EXPECT_EQ(ReadBytes(CustomFile(data)), "hello,72400\r\n");
    EXPECT_TRUE(path.empty());
    EXPECT_TRUE(data.store.IsWordInCustomDictionaries(L"hello"))
        << "custom dictionaries are reloaded";

    ASSERT_TRUE(AddWordToDictionary(data.store, L"Zebra", AddTarget::ExplicitFile, path));
    EXPECT_EQ(path, CustomFile(data)) << "the caller sees the file that was meant";
    EXPECT_EQ(ReadBytes(CustomFile(data)), "hello,72400\r\nzebra,90160\r\n");

    path = data.folder / L"new folder" / "my.dic";
    ASSERT_TRUE(AddWordToDictionary(data.store, L"hello", AddTarget::ExplicitFile, path));
    EXPECT_EQ(ReadBytes(path), "hello,72400\r\n");

    EXPECT_FALSE(data.store.IsWordInDictionaries(L"x-ray", Scope::MainOnly));
    ASSERT_TRUE(AddWordToDictionary(data.store, L"X-ray", AddTarget::Main, path));
    EXPECT_EQ(ReadBytes(data.state.LanguageDictFolder / "x_.dic"), "x-ray,88260\r\n");
    EXPECT_FALSE(data.store.IsWordInDictionaries(L"x-ray", Scope::MainOnly))
        << "the main cache is the caller's";
    data.store.ReloadFile(AdditionFile(data.store, L"X-ray", AddTarget::Main, path));
    EXPECT_TRUE(data.store.IsWordInDictionaries(L"x-ray", Scope::MainOnly));
}

TEST(AddWord, LeavesAFileThatHasTheWordByteForByte) {
    Dictionaries data;
    const std::string untidy = "zz,90000\nhello,72400\r\n\r\nabc";
    WriteBytes(CustomFile(data), untidy);
    Path path;
    EXPECT_TRUE(AddWordToDictionary(data.store, L"HELLO", AddTarget::ActiveCustom, path));
    EXPECT_TRUE(AddWordToDictionary(data.store, L"", AddTarget::ActiveCustom, path));
    EXPECT_EQ(ReadBytes(CustomFile(data)), untidy);
}

TEST(AddWord, RefusesWordsThatCouldNotBeFoundAgain) {
    Dictionaries data;
    Path path;
    for (const std::wstring_view word : {L"a,b", L"a\nb", L"a\tb", L"\u65E5\u672C"}) {
        EXPECT_FALSE(AddWordToDictionary(data.store, word, AddTarget::ActiveCustom, path));
        EXPECT_FALSE(AddWordToDictionary(data.store, word, AddTarget::Main, path));
    }
    EXPECT_TRUE(AllFiles(data).empty());
}

TEST(AddWord, NeverTakesAnUnreadableFileForEmpty) {
    Dictionaries data;
    std::filesystem::create_directories(CustomFile(data) / "inside");
    Path path;
    const Result<void> added =
        AddWordToDictionary(data.store, L"hello", AddTarget::ActiveCustom, path);
    ASSERT_FALSE(added);
    EXPECT_EQ(added.error().where, CustomFile(data));
    EXPECT_TRUE(std::filesystem::is_directory(CustomFile(data) / "inside"));
}

TEST(AddWord, WritesNothingUnderANameThatIsAPath) {
    Dictionaries data;
    Path path;
    data.settings.CustomDic = L"../../outside.dic";
    EXPECT_FALSE(AddWordToDictionary(data.store, L"hello", AddTarget::ActiveCustom, path));
    const std::vector<std::wstring> words = {L"hello"};
    FakeProgress progress;
    EXPECT_FALSE(AddWordsToDictionary(data.store, words, AddTarget::ActiveCustom, path, progress));
    path = data.store.CustomPath(L"../../outside.dic");
    EXPECT_FALSE(AddWordToDictionary(data.store, L"hello", AddTarget::ExplicitFile, path));
    EXPECT_TRUE(AllFiles(data).empty());
}

TEST(AddWords, ShowsProgressFromTenWordsOn) {
    for (const std::size_t count : {9u, 10u}) {
        Dictionaries data;
        std::vector<std::wstring> words;
        for (std::size_t i = 0; i < count; ++i)
            words.push_back(L"word" + std::wstring(1, static_cast<wchar_t>('a' + i)));
        FakeProgress progress;
        Path path;
        data.state.StopFlag = true;
        ASSERT_TRUE(
            AddWordsToDictionary(data.store, words, AddTarget::ActiveCustom, path, progress));
        EXPECT_FALSE(data.state.StopFlag) << "cleared at the start";
        EXPECT_EQ(DictionaryFile(ReadBytes(CustomFile(data))).CountEntries(), count);
        EXPECT_EQ(progress.yields, static_cast<int>(count)) << "before each word";
        if (count < 10) {
            EXPECT_TRUE(progress.titles.empty());
            EXPECT_TRUE(progress.captions.empty());
            EXPECT_EQ(progress.hidden, 0);
            continue;
        }
        EXPECT_EQ(progress.titles, std::vector<std::wstring>{L"Please Wait! Processing Words..."});
        ASSERT_EQ(progress.captions.size(), 11u);
        EXPECT_EQ(progress.captions[0], L"Adding 10 words to dictionary");
        EXPECT_EQ(progress.captions[3], L"Adding word 3 of 10");
        EXPECT_EQ(progress.range, 10u);
        EXPECT_EQ(progress.position, 10u);
        EXPECT_EQ(progress.hidden, 1);
    }
}

TEST(AddWords, StopsWhenAskedAndKeepsWhatWasAdded) {
    const std::vector<std::wstring> words = {L"alpha", L"beta", L"albania", L"gamma", L"alps"};
    for (const AddTarget target : {AddTarget::Main, AddTarget::ActiveCustom}) {
        Dictionaries data;
        FakeProgress progress(4);  // before the fourth word
        Path path;
        ASSERT_TRUE(AddWordsToDictionary(data.store, words, target, path, progress));
        std::size_t added = 0;
        for (const auto& [name, bytes] : AllFiles(data))
            added += DictionaryFile(bytes).CountEntries();
        EXPECT_EQ(added, 3u);
        EXPECT_TRUE(data.state.StopFlag);
    }
}

TEST(AddWords, LeavesOutAndReportsAWordThatNoFileCanHold) {
    Dictionaries data;
    const std::vector<std::wstring> words = {L"alpha", L"", L"b,c", L"delta"};
    FakeProgress progress;
    Path path;
    EXPECT_FALSE(AddWordsToDictionary(data.store, words, AddTarget::ActiveCustom, path, progress));
    EXPECT_EQ(ReadBytes(CustomFile(data)), "alpha,65410\r\ndelta,68430\r\n");
}

TEST(AddWords, ToMainFilesGivesWhatWordByWordGives) {
    test::Random random(21);
    for (int round = 0; round < 15; ++round) {
        Dictionaries together;
        Dictionaries one_by_one;
        std::vector<std::wstring> words;
        for (std::size_t i = random.Below(14); i > 0; --i)
            words.push_back(random.Word(L"abAB'", 1, 3));
        for (std::size_t i = random.Below(4); i > 0; --i) {
            const std::wstring word = Lower(random.Word(L"ab", 2, 3));
            const std::string bytes =
                random.OneIn(2) ? EntryLine(word, *together.state.CodePage) : "ba\r\nab,1\n";
            WriteBytes(together.store.MainPathFor(word), bytes);
            WriteBytes(one_by_one.store.MainPathFor(word), bytes);
        }
        FakeProgress progress;
        Path path;
        ASSERT_TRUE(AddWordsToDictionary(together.store, words, AddTarget::Main, path, progress));
        for (const std::wstring& word : words) {
            ASSERT_TRUE(AddWordToDictionary(one_by_one.store, word, AddTarget::Main, path));
        }
        ASSERT_EQ(AllFiles(together), AllFiles(one_by_one)) << testing::PrintToString(words);
    }
}

TEST(RemoveWord, TakesItFromTheFirstDictionaryThatHasIt) {
    Dictionaries data;
    data.WriteMain({L"hello", L"help"});
    data.WriteCustom(L"CUSTOM.DIC", "hello,72400\r\nzebra,90160\r\nzebra,90160\r\nbare\r\n");
    data.WriteCustom(L"other.dic", "zebra,90160\r\n");
    data.settings.CustomDictionaries = {L"CUSTOM.DIC", L"missing.dic", L"other.dic"};
    const Path main = data.store.MainPathFor(L"hello");

    EXPECT_EQ(RemoveWordFromDictionaries(data.store, L"HELLO").file, main);
    EXPECT_EQ(ReadBytes(main), "help,72410\r\n");
    EXPECT_EQ(ReadBytes(CustomFile(data)), "hello,72400\r\nzebra,90160\r\nzebra,90160\r\nbare\r\n");

    EXPECT_EQ(RemoveWordFromDictionaries(data.store, L"hello").file, CustomFile(data));
    EXPECT_FALSE(data.store.IsWordInCustomDictionaries(L"hello"));
    EXPECT_EQ(RemoveWordFromDictionaries(data.store, L"zebra").file, CustomFile(data));
    EXPECT_EQ(ReadBytes(CustomFile(data)), "zebra,90160\r\nbare\r\n");

    for (const std::wstring_view word : {L"bare", L"unknown", L"", L"\u65E5"}) {
        EXPECT_EQ(RemoveWordFromDictionaries(data.store, word).file, Path())
            << testing::PrintToString(word);
    }
    EXPECT_EQ(ReadBytes(CustomFile(data)), "zebra,90160\r\nbare\r\n");
    EXPECT_EQ(ReadBytes(data.state.CustomFolder() / "other.dic"), "zebra,90160\r\n");
}

TEST(RemoveWord, FromOneCustomDictionary) {
    Dictionaries data;
    data.WriteCustom(L"CUSTOM.DIC", "hello,72400\r\nzebra,90160\r\n");
    data.WriteCustom(L"other.dic", "hello,72400\r\n");
    EXPECT_TRUE(data.store.IsWordInCustomDictionaries(L"hello"));
    EXPECT_TRUE(RemoveWordFromCustomDictionary(data.store, L"Hello", {}).value());
    EXPECT_EQ(ReadBytes(CustomFile(data)), "zebra,90160\r\n");
    EXPECT_FALSE(data.store.IsWordInCustomDictionaries(L"hello"));
    EXPECT_FALSE(RemoveWordFromCustomDictionary(data.store, L"hello", {}).value());
    const Path other = data.state.CustomFolder() / "other.dic";
    EXPECT_TRUE(RemoveWordFromCustomDictionary(data.store, L"hello", other).value());
    EXPECT_EQ(ReadBytes(other), "");
    EXPECT_FALSE(
        RemoveWordFromCustomDictionary(data.store, L"hello", data.folder / L"none" / "x.dic")
            .value());
    EXPECT_FALSE(std::filesystem::exists(data.folder / L"none")) << "looking makes nothing";
}

}  // namespace
}  // namespace wordhawk
