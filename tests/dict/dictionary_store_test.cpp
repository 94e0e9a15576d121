#include "tests/support/dictionaries.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::Dictionaries;
using test::WriteBytes;

TEST(DictionaryStore, FindsWordsWithoutRegardToCase) {
    Dictionaries data;
    data.WriteMain({L"hello", L"a", L"3d", L"\u00E9t\u00E9", L"x-ray"});
    for (const std::wstring_view word :
         {L"hello", L"Hello", L"HELLO", L"A", L"3D", L"\u00C9t\u00E9", L"X-Ray"}) {
        EXPECT_TRUE(data.store.IsWordInDictionaries(word, Scope::MainOnly))
            << testing::PrintToString(word);
    }
    for (const std::wstring_view word :
         {L"", L"hell", L"ete", L"xray", L"zebra", L"\u65E5", L"'tis"}) {
        EXPECT_FALSE(data.store.IsWordInDictionaries(word, Scope::MainAndCustom))
            << testing::PrintToString(word);
    }
}

TEST(DictionaryStore, LooksInCustomDictionariesUnlessMainOnly) {
    Dictionaries data;
    data.WriteCustom(L"CUSTOM.DIC", "zz,1\r\nwidget,87300\r\nbare\r\n");
    data.WriteCustom(L"second.dic", "first\r\ngizmo,71250\r\n");
    data.settings.CustomDictionaries = {L"CUSTOM.DIC", L"second.dic"};
    EXPECT_TRUE(data.store.IsWordInDictionaries(L"Widget", Scope::MainAndCustom));
    EXPECT_FALSE(data.store.IsWordInDictionaries(L"Widget", Scope::MainOnly));
    EXPECT_TRUE(data.store.IsWordInCustomDictionaries(L"BARE"));
    EXPECT_TRUE(data.store.IsWordInCustomDictionaries(L"gizmo"));
    EXPECT_FALSE(data.store.IsWordInCustomDictionaries(L"first")) << "bare, on the first line";
    EXPECT_FALSE(data.store.IsWordInCustomDictionaries(L""));

    data.settings.CustomDictionaries = {L"second.dic"};
    EXPECT_FALSE(data.store.IsWordInCustomDictionaries(L"widget")) << "no longer listed";
    EXPECT_EQ(data.store.CustomCount(), 1u);
}

TEST(DictionaryStore, KnowsPiecesAndCompoundsAsTheSettingsSay) {
    Dictionaries data;
    data.WriteMain({L"isn't"});
    WriteBytes(data.state.LanguageDictFolder / kPiecesFile, "isn,0\r\n");
    WriteBytes(data.state.LanguageDictFolder / kCompoundsFile, "arbeits,2\r\nzimmer,8\r\n");
    const struct {
        std::uint8_t letters_stay, straight_apostrophe, compounds;
        bool piece, compound;
    } cases[] = {{0, 0, 0, true, false},
                 {1, 0, 0, true, false},
                 {0, 1, 1, true, true},
                 {1, 1, 0, false, false},
                 {1, 1, 1, false, true}};
    for (const auto& c : cases) {
        data.settings.LettersStay = c.letters_stay;
        data.settings.StraightApostrophe = c.straight_apostrophe;
        data.settings.Compounds = c.compounds;
        EXPECT_EQ(data.store.IsWordInDictionaries(L"Isn", Scope::MainOnly), c.piece);
        EXPECT_EQ(data.store.IsWordInDictionaries(L"ARBEITSZIMMER", Scope::MainOnly), c.compound);
        EXPECT_TRUE(data.store.IsWordInDictionaries(L"isn't", Scope::MainOnly));
    }
}

TEST(DictionaryStore, EmptyNamesMeanTheDefaultDictionary) {
    Dictionaries data;
    data.WriteCustom(L"CUSTOM.DIC", "widget,87300\r\n");
    data.settings.CustomDic.clear();
    data.settings.CustomDictionaries.clear();
    EXPECT_TRUE(data.store.IsWordInCustomDictionaries(L"widget"));
    EXPECT_EQ(data.settings.CustomDic, L"CUSTOM.DIC");
    data.settings.CustomDic.clear();
    EXPECT_EQ(data.store.ActiveCustomPath(), data.state.CustomFolder() / "CUSTOM.DIC");
    EXPECT_EQ(data.settings.CustomDic, L"CUSTOM.DIC");
}

TEST(DictionaryStore, ReadsAMainFileOnceEvenWhenItIsMissing) {
    Dictionaries data;
    EXPECT_FALSE(data.store.IsWordInDictionaries(L"hello", Scope::MainOnly));
    EXPECT_EQ(data.store.MainFileFor(L"hello"), nullptr);
    data.WriteMain({L"hello"});
    EXPECT_FALSE(data.store.IsWordInDictionaries(L"hello", Scope::MainOnly))
        << "the disk is not tried again";
    const Path path = data.store.MainPathFor(L"hello");
    data.store.ReloadFile(path);
    EXPECT_TRUE(data.store.IsWordInDictionaries(L"hello", Scope::MainOnly));
    EXPECT_NE(data.store.MainFileFor(L"hello"), nullptr);

    std::filesystem::remove(path);
    EXPECT_TRUE(data.store.IsWordInDictionaries(L"hello", Scope::MainOnly));
    data.store.ReloadFile(data.folder.Folder() / "Dictionarys" / "1033" / "." / "he_.dic");
    data.store.ReloadFile(path);
    EXPECT_FALSE(data.store.IsWordInDictionaries(L"hello", Scope::MainOnly));
}

TEST(DictionaryStore, ReloadFindsTheFileUnderAnotherSpellingOfItsPath) {
    Dictionaries data;
    data.WriteMain({L"hello"});
    EXPECT_FALSE(data.store.IsWordInDictionaries(L"help", Scope::MainOnly));
    data.WriteMain({L"hello", L"help"});
    data.store.ReloadFile(data.folder.Folder() / "Dictionarys" / ".." / "Dictionarys" / "1033" /
                          "he_.dic");
    EXPECT_TRUE(data.store.IsWordInDictionaries(L"help", Scope::MainOnly));
}

TEST(DictionaryStore, FilesOfBytesAreThoseOfWords) {
    Dictionaries data;
    for (const int number : {1252, 1251, 1253}) {
        data.state.CodePage = &AnsiCodePage::Get(number);
        data.store.SyncWithState();
        for (unsigned first = 0; first < 256; first += 11) {
            for (unsigned second = 1; second < 256; second += 19) {
                const std::wstring word = {
                    data.state.CodePage->ToUnicode(static_cast<unsigned char>(first)),
                    data.state.CodePage->ToUnicode(static_cast<unsigned char>(second))};
                const Path path = data.store.MainPathFor(word);
                if (!std::filesystem::exists(path)) WriteBytes(path, "one,1\r\n");
                ASSERT_EQ(&data.store.MainFileOfBytes(static_cast<unsigned char>(first),
                                                      static_cast<unsigned char>(second)),
                          data.store.MainFileFor(word))
                    << number << " " << first << " " << second;
            }
        }
    }
}

TEST(DictionaryStore, LooksIntoFilesThatItHasNotReadWithTheSameAnswers) {
    test::Random random(7);
    for (int round = 0; round < 30; ++round) {
        Dictionaries data;
        data.state.CodePage = &AnsiCodePage::Get(1252);
        std::vector<std::wstring> words;
        for (int i = 0; i < 60; ++i) words.push_back(random.Word(L"ab\xE9", 2, 4));
        data.WriteMain(words);
        if (round % 2 == 1)
            WriteBytes(data.store.MainPathFor(L"ab"), "abz,1\r\nabb,2\r\naba,3\r\n");
        DictionaryStore other(data.state, data.settings);
        for (int probe = 0; probe < 150; ++probe) {
            const std::wstring word = random.Word(L"ab\xE9z", 2, 4);
            ASSERT_EQ(data.store.IsInMain(data.state.CodePage->Encode(word)),
                      other.IsWordInDictionaries(word, Scope::MainOnly))
                << ToUtf8(word);
        }
    }
}

TEST(DictionaryStore, FollowsTheLanguageFolder) {
    Dictionaries data;
    data.WriteMain({L"hello"});
    EXPECT_TRUE(data.store.IsWordInDictionaries(L"hello", Scope::MainOnly));
    data.state.LanguageDictFolder = data.folder.Folder() / "Dictionarys" / "1031" / "";
    EXPECT_FALSE(data.store.IsWordInDictionaries(L"hello", Scope::MainOnly));
    WriteBytes(data.state.LanguageDictFolder / "ha_.dic", "hallo,72400\r\n");
    EXPECT_TRUE(data.store.IsWordInDictionaries(L"hallo", Scope::MainOnly));
    data.state.LanguageDictFolder = data.folder.Folder() / "Dictionarys" / "1033" / "";
    data.store.SyncWithState();
    EXPECT_TRUE(data.store.MainFileOfBytes('h', 'e').Contains("hello", EntryForms::KeyedOnly));
}

TEST(DictionaryStore, CustomFilesAreReadAgainOnReload) {
    Dictionaries data;
    EXPECT_EQ(data.store.CustomFile(0), nullptr);
    EXPECT_EQ(data.store.CustomFile(1), nullptr);
    data.WriteCustom(L"CUSTOM.DIC", "widget,87300\r\n");
    EXPECT_FALSE(data.store.IsWordInCustomDictionaries(L"widget"));
    data.store.ReloadCustomDictionaries();
    EXPECT_TRUE(data.store.IsWordInCustomDictionaries(L"widget"));
    ASSERT_NE(data.store.CustomFile(0), nullptr);
    data.WriteCustom(L"CUSTOM.DIC", "gizmo,71250\r\n");
    data.store.ReloadFile(data.store.CustomPath(L"CUSTOM.DIC"));
    EXPECT_TRUE(data.store.IsWordInCustomDictionaries(L"gizmo"));
}

TEST(DictionaryStore, NamesFromTheSettingsNeverLeaveTheCustomFolder) {
    Dictionaries data;
    WriteBytes(data.folder / L"secret.dic", "x,1\r\nsecret,73263\r\n");
    WriteBytes(data.state.CustomFolder() / "sub" / "w.dic", "x,1\r\nsecret,73263\r\n");
    const std::wstring absolute = TextFromPath(data.folder / L"secret.dic");
    for (const std::wstring& name :
         {std::wstring(L"../../secret.dic"), std::wstring(L"..\\..\\secret.dic"),
          std::wstring(L"sub/w.dic"), std::wstring(L".."), absolute}) {
        data.settings.CustomDictionaries = {name};
        EXPECT_FALSE(data.store.IsWordInCustomDictionaries(L"secret"))
            << testing::PrintToString(name);
        EXPECT_EQ(data.store.CustomFile(0), nullptr);
        data.settings.CustomDic = name;
        EXPECT_EQ(data.store.ActiveCustomPath(), data.state.CustomFolder());
    }
}

TEST(DictionaryStore, AFileThatCannotBeReadCountsAsEmpty) {
    Dictionaries data;
    std::filesystem::create_directories(data.store.MainPathFor(L"hello"));
    EXPECT_FALSE(data.store.IsWordInDictionaries(L"hello", Scope::MainOnly));
}

TEST(DictionaryStore, TellsOfFilesThatCannotBeRead) {
    Dictionaries data;
    const Path main = data.store.MainPathFor(L"hello");
    const Path custom = data.state.CustomFolder() / "CUSTOM.DIC";
    data.store.IsWordInDictionaries(L"hello", Scope::MainAndCustom);
    EXPECT_TRUE(data.store.Unreadable().empty()) << "missing files are no error";
    data.settings.Compounds = 1;
    const Path compounds = data.state.LanguageDictFolder / kCompoundsFile;
    for (const Path& file : {main, compounds, custom}) {
        // A folder in a file's place stands for whatever the system refuses to read.
        std::filesystem::create_directories(file);
        data.store.ReloadFile(file);
    }
    data.store.IsWordInDictionaries(L"hello", Scope::MainAndCustom);
    data.store.IsWordInDictionaries(L"help", Scope::MainAndCustom);
    ASSERT_EQ(data.store.Unreadable().size(), 3u);
    EXPECT_EQ(data.store.Unreadable()[0].where, main);
    EXPECT_EQ(data.store.Unreadable()[1].where, compounds);
    EXPECT_EQ(data.store.Unreadable()[2].where, custom);
    std::filesystem::remove(main);
    test::WriteBytes(main, "hello,72400\r\n");
    data.store.ReloadFile(main);
    EXPECT_EQ(data.store.Unreadable().size(), 2u) << "it can be read again";
    EXPECT_TRUE(data.store.IsWordInDictionaries(L"hello", Scope::MainOnly));
}

}  // namespace
}  // namespace wordhawk
