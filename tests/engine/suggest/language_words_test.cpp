#include "engine/suggest/language_words.h"

#include "engine/suggest/build_word_image.h"
#include "engine/suggest/wide_search.h"
#include "tests/support/dictionaries.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>

namespace wordhawk {
namespace {

using test::Dictionaries;

class LanguageWordsTest : public ::testing::Test {
  protected:
    LanguageWordsTest() { data_.WriteMain({L"apple", L"apply", L"banana", L"be", L"bee"}); }

    /// What is found now by an object that looks at every file.
    std::set<std::string> Words(LanguageWords& words) {
        Progress none;
        words.LookAtAllFiles();
        words.Refresh(none);
        std::set<std::string> all;
        for (std::uint32_t i = 0; i < words.Image().WordCount(); ++i) {
            if (!words.IsOutdated(i)) all.emplace(words.Image().Word(i));
        }
        for (const WordList& list : words.Lists()) {
            for (std::size_t i = 0; i < list.size(); ++i) all.emplace(list[i]);
        }
        return all;
    }
    Path MakeCache() {
        LanguageWords words(data_.store);
        EXPECT_EQ(Words(words), start_);
        return ImageFileOf(data_.state);
    }
    void WriteFile(const char* name, std::string_view bytes) {
        test::WriteBytes(data_.state.LanguageDictFolder / name, bytes);
    }

    Dictionaries data_;
    const std::set<std::string> start_ = {"apple", "apply", "banana", "be", "bee"};
};

TEST_F(LanguageWordsTest, HoldsWhatALookUpFinds) {
    WriteFile("ca_.dic", "cat,1\r\nCab,2\r\ncar\r\n,3\r\ncan,4,5\r\ncap,6");
    WriteFile("cb_.dic", "cabin,1\r\n");  // another file's word
    data_.WriteCustom(L"CUSTOM.DIC", "first\r\nsecond\r\nthird,1\r\nLoud,2\r\nlast");
    LanguageWords words(data_.store);
    const std::set<std::string> all = Words(words);
    for (const char* const word : {"cat", "Cab", "cab", "car", "can", "cap", "cabin", "first",
                                   "second", "third", "Loud", "loud", "last", "apple"}) {
        const std::wstring wide(word, word + std::strlen(word));
        const bool lower = Lower(wide) == wide;
        EXPECT_EQ(all.contains(word),
                  lower && data_.store.IsWordInDictionaries(wide, Scope::MainAndCustom))
            << word;
    }
}

TEST_F(LanguageWordsTest, SeesEveryChangeOfTheFiles) {
    LanguageWords words(data_.store);
    EXPECT_EQ(Words(words), start_);
    struct Step {
        const char* file;
        const char* bytes;  // null: the file goes
        std::set<std::string> expected;
    };
    for (const Step& step : std::vector<Step>{
             {"ap_.dic", "apple,1\r\napricot,1\r\n", {"apple", "apricot", "banana", "be", "bee"}},
             {"ch_.dic", "chair,1\r\n", {"apple", "apricot", "banana", "be", "bee", "chair"}},
             {"be_.dic", nullptr, {"apple", "apricot", "banana", "chair"}},
             {"be_.dic", "bell,1\r\n", {"apple", "apricot", "banana", "chair", "bell"}}}) {
        const Path path = data_.state.LanguageDictFolder / step.file;
        if (step.bytes == nullptr) {
            std::filesystem::remove(path);
        } else {
            WriteFile(step.file, step.bytes);
        }
        EXPECT_EQ(Words(words), step.expected) << step.file;
        LanguageWords fresh(data_.store);
        EXPECT_EQ(Words(fresh), step.expected) << step.file;
    }
    // More than is worth keeping beside the image: it is made anew.
    std::set<std::string> expected = {"apple", "apricot", "banana", "chair", "bell"};
    for (char c = 'a'; c <= 'z'; ++c) {
        const std::string word = std::string("z") + c + "x";
        WriteFile((word.substr(0, 2) + "_.dic").c_str(), word + ",1\r\n");
        expected.insert(word);
    }
    EXPECT_EQ(Words(words), expected);
    EXPECT_EQ(words.Image().WordCount(), expected.size());
    data_.WriteCustom(L"CUSTOM.DIC", "own,1\r\n");
    expected.insert("own");
    EXPECT_EQ(Words(words), expected);
    data_.settings.SuggFromMain = 1;
    EXPECT_FALSE(Words(words).contains("own")) << "suggestions from the main dictionary only";
    data_.settings.SuggFromMain = 0;
    EXPECT_EQ(Words(words), expected);
    std::filesystem::remove(data_.state.CustomFolder() / "CUSTOM.DIC");
    expected.erase("own");
    EXPECT_EQ(Words(words), expected);
}

TEST_F(LanguageWordsTest, StoppedByTheUserHasNoImageUntilItIsMade) {
    class Stopping : public Progress {
      public:
        void SetRange(std::uint64_t maximum) override { range = maximum; }
        bool YieldAndAskCancel() override { return stop; }
        std::uint64_t range = 0;
        bool stop = true;
    } progress;
    LanguageWords words(data_.store);
    EXPECT_FALSE(words.Refresh(progress));
    EXPECT_EQ(progress.range, 3u) << "files";
    EXPECT_FALSE(IsFile(ImageFileOf(data_.state)));
    EXPECT_FALSE(words.Refresh(progress));
    progress.stop = false;
    EXPECT_TRUE(words.Refresh(progress));
    EXPECT_EQ(words.Image().WordCount(), start_.size());
    progress.range = 0;
    EXPECT_TRUE(words.Refresh(progress));
    EXPECT_EQ(progress.range, 0u) << "nothing to make, nothing to show";
}

TEST_F(LanguageWordsTest, DamagedCachesAreMadeAnew) {
    const Path cache = MakeCache();
    const std::string good = test::ReadBytes(cache);
    ASSERT_FALSE(good.empty());
    test::Random random(15);
    for (int round = 0; round < 300; ++round) {
        std::string bad = good;
        if (round % 3 == 0) {
            bad.resize(random.Below(bad.size()));
        } else {
            for (std::size_t n = 1 + random.Below(4); n > 0; --n)
                bad[random.Below(bad.size())] ^= static_cast<char>(1 + random.Below(255));
        }
        EXPECT_FALSE(WordImage::Read(bad, 1252)) << round;
    }
    std::filesystem::remove(cache);
    test::WriteBytes(cache, good.substr(0, good.size() / 2));
    LanguageWords second(data_.store);
    EXPECT_EQ(Words(second), start_);
    EXPECT_TRUE(WordImage::Read(test::ReadBytes(cache), 1252));
    EXPECT_FALSE(WordImage::Read(test::ReadBytes(cache), 1250)) << "another page";
}

TEST_F(LanguageWordsTest, HostileNumbersDoNoHarm) {
    // A file whose checksum is right, but whose numbers point anywhere.
    const Path cache = MakeCache();
    const std::string good = test::ReadBytes(cache);
    test::Random random(16);
    std::size_t read = 0;
    for (int round = 0; round < 400; ++round) {
        std::string bad = good;
        const std::size_t from = round % 2 == 0 ? sizeof(WordImage::Header) : 24;
        for (int n = 0; n < 12; ++n)
            bad[from + random.Below(bad.size() - from)] = static_cast<char>(random.Below(256));
        WordImage::Header header;
        std::memcpy(&header, bad.data(), sizeof header);
        if (std::max(header.bucket_bits, header.sound_bits) > 28) continue;  // too many to seal
        word_image::Seal(bad);
        const auto image = WordImage::Read(bad, 1252);
        if (!image) continue;
        ++read;
        for (std::uint32_t i = 0; i < image->WordCount(); ++i) image->Word(i);
        for (const WordImage::FileRow& file : image->Files()) image->FileName(file);
        image->Find("apple");
        image->Find("zzz");
        // The search itself over such a file: its own stamps may still be right.
        std::filesystem::remove(cache);
        test::WriteBytes(cache, bad);
        WideSearch(data_.store).Find(L"aple");
        WideSearch(data_.store).Find(L"banannnas");
        if (const auto table = MainTableFromImage(data_.state)) {
            for (const char* const word : {"apple", "zzz"})
                table->Holds(word, DictionaryFile::HashBytes(word));
        }
    }
    EXPECT_GT(read, 100U);
}

TEST_F(LanguageWordsTest, KeepsTheImageInMemoryWhereNothingCanBeWritten) {
    // A file stands where the folder should be.
    test::WriteBytes(data_.state.DataFolder / "Cache", "in the way");
    LanguageWords words(data_.store);
    EXPECT_EQ(Words(words), start_);
    EXPECT_EQ(test::ReadBytes(data_.state.DataFolder / "Cache"), "in the way");
}

TEST_F(LanguageWordsTest, FollowsTheLanguage) {
    LanguageWords words(data_.store);
    EXPECT_EQ(Words(words), start_);
    data_.state.LanguageId = L"1031";
    data_.state.LanguageDictFolder = data_.state.DataFolder / "Dictionarys" / "1031" / "";
    WriteFile("ap_.dic", "apfel,1\r\n");
    EXPECT_EQ(Words(words), std::set<std::string>{"apfel"});
    data_.state.LanguageDictFolder = data_.state.DataFolder / "Dictionarys" / "none" / "";
    EXPECT_TRUE(Words(words).empty());
}

}  // namespace
}  // namespace wordhawk
