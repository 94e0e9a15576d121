#include "engine/suggest/image_file.h"

#include "engine/suggest/language_words.h"
#include "tests/support/dictionaries.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <cstring>

namespace wordhawk {
namespace {

using test::Dictionaries;

/// Enough beginnings of words that a store has opened its share of files and asks for a table.
constexpr std::wstring_view kLetters = L"abcdefghijk'\xE9";

class MainTableTest : public ::testing::Test {
  protected:
    void WriteWords(std::size_t count) {
        std::vector<std::wstring> words;
        for (std::size_t i = 0; i < count; ++i) words.push_back(random_.Word(kLetters, 1, 4));
        words.emplace_back(70, L'a');
        data_.WriteMain(words);
    }
    void MakeImage() {
        LanguageWords words(data_.store);
        Progress none;
        ASSERT_TRUE(words.Refresh(none));
        ASSERT_TRUE(IsFile(ImageFileOf(data_.state)));
    }
    Path FileOf(const char* name) { return data_.state.LanguageDictFolder / name; }
    std::wstring Probe() {
        return random_.Below(40) == 0 ? std::wstring(69 + random_.Below(3), L'a')
                                      : random_.Word(L"abcdefghijkAE',\xE9\x3C9", 1, 4);
    }
    /// Both ways to ask a store for a word.
    static std::pair<bool, bool> Answers(DictionaryStore& store, const std::wstring& word) {
        const std::string bytes = store.Page().Encode(Lower(word));
        const bool plain = bytes.size() > 1 && bytes.find(',') == bytes.npos;
        return {plain && store.IsInMain(bytes), store.IsWordInDictionaries(word, Scope::MainOnly)};
    }

    test::Random random_{31};
    Dictionaries data_;
};

TEST_F(MainTableTest, AnswersAsTheFilesDoWhateverBecameOfThem) {
    std::size_t differences_of_a_wrong_table = 0;
    for (int round = 0; round < 12; ++round) {
        WriteWords(600);
        test::WriteBytes(FileOf("ba_.dic"), "bad,1\r\nBaD,2\r\nab,3\r\nbag\r\nbaa,c,4\r\nbab,5");
        test::WriteBytes(FileOf("bb_.dic"), "");
        MakeImage();
        // Other programs change files.
        test::WriteBytes(FileOf("ca_.dic"), "cat,1\r\ncaf,2\r\n");
        std::filesystem::remove(FileOf("da_.dic"));
        std::filesystem::remove(FileOf("bc_.dic"));
        std::filesystem::create_directory(FileOf("bc_.dic"));

        int asked = 0;
        DictionaryStore with_table(data_.state, data_.settings);
        with_table.SetMainTableSource([&](const ProgramState& state) {
            ++asked;
            return MainTableFromImage(state);
        });
        DictionaryStore wrong(data_.state, data_.settings);
        wrong.SetMainTableSource([](const ProgramState& state) {
            auto table = MainTableFromImage(state);
            table->count = 0;
            return table;
        });
        DictionaryStore plain(data_.state, data_.settings);
        for (int i = 0; i < 3000; ++i) {
            const std::wstring word = Probe();
            const auto expected = Answers(plain, word);
            ASSERT_EQ(Answers(with_table, word), expected) << round << " " << ToUtf8(word);
            differences_of_a_wrong_table += Answers(wrong, word) != expected;
        }
        EXPECT_EQ(asked, 1);
        EXPECT_EQ(with_table.Unreadable().size(), plain.Unreadable().size());

        // What the program itself writes is read again.
        test::WriteBytes(FileOf("ea_.dic"), "eak,1\r\n");
        with_table.ReloadFile(FileOf("ea_.dic"));
        plain.ReloadFile(FileOf("ea_.dic"));
        for (int i = 0; i < 300; ++i) {
            const std::wstring word = L"ea" + random_.Word(kLetters, 0, 1);
            ASSERT_EQ(Answers(with_table, word), Answers(plain, word)) << ToUtf8(word);
        }
        std::filesystem::remove(FileOf("bc_.dic"));
    }
    EXPECT_GT(differences_of_a_wrong_table, 1000u) << "the table was asked";
}

TEST_F(MainTableTest, FollowsTheLanguage) {
    WriteWords(600);
    MakeImage();
    data_.store.SetMainTableSource(MainTableFromImage);
    for (int i = 0; i < 1000; ++i) Answers(data_.store, Probe());
    data_.state.LanguageId = L"1031";
    data_.state.LanguageDictFolder = data_.state.DataFolder / "Dictionarys" / "1031" / "";
    WriteWords(300);
    DictionaryStore plain(data_.state, data_.settings);
    for (int i = 0; i < 2000; ++i) {
        const std::wstring word = Probe();
        ASSERT_EQ(Answers(data_.store, word), Answers(plain, word)) << ToUtf8(word);
    }
}

TEST_F(MainTableTest, IsNotTakenFromADamagedImageOrOneWithNamesThatNoLookUpAsksFor) {
    WriteWords(100);
    EXPECT_FALSE(MainTableFromImage(data_.state)) << "there is no image";
    MakeImage();
    EXPECT_TRUE(MainTableFromImage(data_.state));
    const std::string good = test::ReadBytes(ImageFileOf(data_.state));
    WordImage::Header header;
    std::memcpy(&header, good.data(), sizeof header);
    const std::size_t table_size = word_image::Layout(header).groups;
    for (int round = 0; round < 200; ++round) {
        std::string bad = good;
        bad[random_.Below(table_size)] ^= static_cast<char>(1 + random_.Below(255));
        std::filesystem::remove(ImageFileOf(data_.state));
        test::WriteBytes(ImageFileOf(data_.state), bad);
        EXPECT_FALSE(MainTableFromImage(data_.state)) << round;
    }
    std::filesystem::remove(ImageFileOf(data_.state));
    test::WriteBytes(FileOf("Zz_.dic"), "zzz,1\r\n");
    MakeImage();
    EXPECT_FALSE(MainTableFromImage(data_.state));
}

}  // namespace
}  // namespace wordhawk
