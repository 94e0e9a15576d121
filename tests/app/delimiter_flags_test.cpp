#include "app/delimiter_flags.h"

#include "platform/modSect.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace wordhawk {
namespace {

std::string FlagsOf(const DelimiterFlagStore& store) {
    std::string flags;
    for (int i = 1; i <= DelimiterFlagStore::kCount; ++i) flags += store.Get(i) ? '1' : '0';
    return flags;
}

TEST(DelimiterFlags, DefaultsWithoutAFile) {
    const test::TempDir folder;
    DelimiterFlagStore store;
    store.Load(folder / L"Wordhawk.ini");
    const std::string flags = FlagsOf(store);
    EXPECT_EQ(flags, DelimiterFlagStore::DefaultFlags());
    EXPECT_EQ(flags.size(), 255u);
    EXPECT_EQ(std::count(flags.begin(), flags.end(), '1'), 15 + 83 + 5);
    EXPECT_EQ(store.Get(249), 1) << "skip words of the main dictionary";
    EXPECT_EQ(store.Get(250), 1) << "skip words of a custom dictionary";
    EXPECT_EQ(store.Get(251), 0);
    EXPECT_EQ(store.Get(254), 1) << "warn before adding to the main dictionary";
    EXPECT_EQ(store.Get(255), 0);
}

TEST(DelimiterFlags, AllFlagsSurviveARestart) {
    const test::TempDir folder;
    const Path file = folder / L"Wordhawk.ini";
    for (const int pattern : {2, 3, 5}) {
        DelimiterFlagStore saved;
        saved.Load(file);
        for (int i = 1; i <= 255; ++i) saved.Set(i, i % pattern == 0 ? 1 : 0);
        ASSERT_TRUE(saved.Save());
        DelimiterFlagStore loaded;
        loaded.Load(file);
        EXPECT_EQ(FlagsOf(loaded), FlagsOf(saved));
    }
    EXPECT_EQ(modSect::ReadSection(file, L"Settings").front().size(), 4u + 255u);
}

TEST(DelimiterFlags, OddStoredTexts) {
    const test::TempDir folder;
    const Path file = folder / L"Wordhawk.ini";
    const std::string& standard = DelimiterFlagStore::DefaultFlags();
    const struct {
        std::string stored;
        std::string flags;
        const char* reason;
    } cases[] = {
        {"", standard, "empty"},
        {"000", "000" + standard.substr(3), "short: the rest is the default"},
        {"2x-1", "0001" + standard.substr(4), "anything but 1 is 0"},
        {std::string(300, '1'), std::string(255, '1'), "too long"},
    };
    for (const auto& row : cases) {
        test::WriteBytes(file, "[Settings]\r\nScoreValue=7\r\ndsa = " + row.stored + "\r\n");
        DelimiterFlagStore store;
        store.Load(file);
        EXPECT_EQ(FlagsOf(store), row.flags) << row.reason;
    }
}

TEST(DelimiterFlags, OutsideIndexesAreIgnored) {
    DelimiterFlagStore store;
    for (const int index : {0, -1, 256, 100000}) {
        store.Set(index, 1);
        EXPECT_EQ(store.Get(index), 0);
    }
    EXPECT_EQ(FlagsOf(store), DelimiterFlagStore::DefaultFlags());
}

TEST(DelimiterFlags, CodesOfTheRangesEnds) {
    const struct {
        int flag;
        int code;
    } cases[] = {{1, 9},     {2, 33},    {7, 38},   {8, 40},   {16, 48},  {25, 57},   {32, 64},
                 {33, 91},   {38, 96},   {39, 123}, {73, 157}, {74, 160}, {105, 191}, {106, 215},
                 {107, 247}, {108, 248}, {109, 0},  {0, 0},    {255, 0}};
    for (const auto& row : cases) EXPECT_EQ(DelimiterCodeOfFlag(row.flag), row.code) << row.flag;
}

TEST(DelimiterFlags, DefaultDelimitersInTheWesternPage) {
    const std::wstring delimiters = BuildDelimiters(DelimiterFlagStore(), AnsiCodePage::Get(1252));
    EXPECT_EQ(delimiters.size(), 98u);
    EXPECT_TRUE(delimiters.starts_with(L"\t!\"#$%&()*+,-./:;<=>?@[\\]^_`{|}~\x7F\x20AC"));
    EXPECT_TRUE(delimiters.ends_with(L"\x00BF\x00D7\x00F7\x00F8"));
    const DelimiterSet set(delimiters);
    for (const wchar_t c : std::wstring_view(L"\t-.@\x2019\x2013\x00A0"))
        EXPECT_TRUE(set.Contains(c)) << int(c);
    for (const wchar_t c : std::wstring_view(L"0123456789' azAZ\x00E9\x00FF\x00F9\x017E")) {
        EXPECT_FALSE(set.Contains(c)) << int(c);
    }
}

TEST(DelimiterFlags, TheSameCodesInAnotherPage) {
    const std::wstring delimiters = BuildDelimiters(DelimiterFlagStore(), AnsiCodePage::Get(1250));
    const DelimiterSet set(delimiters);
    EXPECT_EQ(delimiters.size(), 98u);
    EXPECT_TRUE(set.Contains(L'\x0141')) << "code 163 is a capital letter in this page";
    EXPECT_TRUE(set.Contains(L'\x0159')) << "code 248";
    EXPECT_FALSE(set.Contains(L'\x00F8')) << "not in this page";
    EXPECT_TRUE(set.Contains(L'\x2019'));
}

TEST(DelimiterFlags, OneFlagIsOneCharacterInFlagOrder) {
    DelimiterFlagStore store;
    for (int i = 1; i <= 255; ++i) store.Set(i, 0);
    EXPECT_EQ(BuildDelimiters(store, AnsiCodePage::Get(1252)), L"");
    store.Set(108, 1);
    store.Set(16, 1);
    store.Set(109, 1);
    EXPECT_EQ(BuildDelimiters(store, AnsiCodePage::Get(1252)), L"0\x00F8");
}

TEST(DelimiterFlags, TwoThatAreSavedInTurnKeepEachOthersChanges) {
    const test::TempDir folder;
    const Path file = folder / L"Wordhawk.ini";
    DelimiterFlagStore one;
    DelimiterFlagStore other;
    one.Load(file);
    other.Load(file);
    one.Set(2, 0);
    other.Set(3, 0);
    ASSERT_TRUE(one.Save() && other.Save());
    DelimiterFlagStore stored;
    stored.Load(file);
    EXPECT_EQ(stored.Get(2) + stored.Get(3), 0);
    EXPECT_EQ(other.Get(2), 0) << "what is saved is what holds";
    EXPECT_EQ(stored.Get(4), 1);
}

TEST(DelimiterFlags, LettersAmongTheDelimitersCanStayInTheirWords) {
    const struct {
        int page;
        const wchar_t* letters;
    } cases[] = {
        {1252, L"\u0160\u0152\u017D\u0161\u0153\u00F8"},
        {1250,
         L"\u0160\u015A\u0164\u017D\u0179\u0161\u015B\u0165\u0141\u0104\u015E\u017B"
         L"\u0142\u0105\u015F\u013D\u013E\u017C\u0159"},
    };
    for (const auto& c : cases) {
        const std::wstring all = BuildDelimiters(DelimiterFlagStore(), AnsiCodePage::Get(c.page));
        const std::wstring rest = WithoutLetters(all);
        const std::wstring letters = c.letters;
        EXPECT_EQ(rest.size() + letters.size(), all.size()) << c.page;
        EXPECT_EQ(rest.find_first_of(letters), std::wstring::npos) << c.page;
        for (const wchar_t kept : {L'\t', L'-', L'.', L'\u00A0', L'\u2019', L'\u00D7'})
            EXPECT_NE(rest.find(kept), std::wstring::npos) << c.page;
    }
}

}  // namespace
}  // namespace wordhawk
