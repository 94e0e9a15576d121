#include "dict/build.h"

#include "dict/dictionary_file.h"
#include "dict/pack_extras.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <array>

namespace wordhawk {
namespace {

using test::ReadBytes;
using test::TempDir;
using test::WriteBytes;

TEST(BuildDictionary, WritesSortedFilesFromListsOfBothEncodings) {
    TempDir temp;
    const Path utf8 = temp / L"utf8.txt";
    const Path ansi = temp / L"ansi.txt";
    WriteBytes(
        utf8,
        "\xEF\xBB\xBFHello\nhelp\r\n  hello  \n\n\xC3\x89t\xC3\xA9\n\xE2\x82\xAC\nhello's\na\n");
    WriteBytes(ansi, "\xE9tat\r\n3d\r\nHELP\r\n");
    const std::array lists = {utf8, ansi};
    const Result<BuildReport> report = BuildDictionary(lists, temp / L"out" / "1036", {});
    ASSERT_TRUE(report);
    EXPECT_EQ(report->words, 8u);
    EXPECT_EQ(report->files, 4u);
    EXPECT_EQ(report->skipped, 0u);
    const Path out = temp / L"out" / "1036";
    EXPECT_EQ(ReadBytes(out / "he_.dic"), "hello's,72420\r\nhello,72400\r\nhelp,72410\r\n");
    EXPECT_EQ(ReadBytes(out / PathFromText(L"\u00E9t_.dic")),
              "\xE9tat,20130\r\n\xE9t\xE9,20130\r\n");
    EXPECT_EQ(ReadBytes(out / "aa_.dic"), "a,65000\r\n");
    EXPECT_EQ(ReadBytes(out / "codepage.txt"), "1252\r\n");
    EXPECT_EQ(ReadBytes(out / "_noncase_.dic"), "3d,51300\r\n\x80,12800\r\n");
}

TEST(BuildDictionary, LeavesOutWhatIsExcludedOrCannotBeHeld) {
    TempDir temp;
    const Path list = temp / L"list.txt";
    const Path excluded = temp / L"excluded.txt";
    WriteBytes(list, "alpha\nbeta\ngamma\n\xD0\xB4\xD0\xB0\na,b\nalp\x01ha\n");
    WriteBytes(excluded, "BETA\nunknown\n\xD0\xB4\xD0\xB0\n");
    BuildOptions options;
    options.excluded_lists = {excluded};
    const Result<BuildReport> report = BuildDictionary({&list, 1}, temp / L"out", options);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->words, 2u);
    EXPECT_EQ(report->skipped, 3u);
    EXPECT_FALSE(std::filesystem::exists(temp / L"out" / "be_.dic"));

    options.page = &AnsiCodePage::Get(1251);
    options.excluded_lists.clear();
    ASSERT_TRUE(BuildDictionary({&list, 1}, temp / L"cyrillic", options));
    EXPECT_EQ(ReadBytes(temp / L"cyrillic" / PathFromText(L"\u0434\u0430_.dic")),
              "\xE4\xE0,19600\r\n");
}

TEST(BuildDictionary, CutsWordsAsTheirReaderWill) {
    TempDir temp;
    const Path list = temp / L"list.txt";
    const Path stems = temp / L"stems.txt";
    WriteBytes(list,
               "isn't\nx-ray\no'er-all\nr\xC3\xB8"
               "d-hat\n");
    WriteBytes(stems, "Couldn\n");
    BuildOptions options;
    options.cuts = L"-";
    options.letter_cuts = L"'\u00F8";
    options.piece_lists = {stems};
    const Result<BuildReport> report = BuildDictionary({&list, 1}, temp / L"out", options);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->words, 9u)
        << "isn't x-ray ray o'er-all o'er all and r\u00F8d-hat r\u00F8d hat";
    EXPECT_EQ(ReadBytes(temp / L"out" / "is_.dic"), "isn't,73253\r\n");
    EXPECT_EQ(ReadBytes(temp / L"out" / kPiecesFile),
              "all,0\r\ncouldn,0\r\ner,0\r\nhat,0\r\nisn,0\r\n")
        << "no single letters";
}

TEST(BuildDictionary, SpellsOutHunspellDictionaries) {
    TempDir temp;
    const Path dictionary = temp / L"xx.dic";
    WriteBytes(
        temp / L"xx.aff",
        "SET UTF-8\nCOMPOUNDBEGIN B\nCOMPOUNDEND E\nSFX S Y 2\nSFX S 0 s .\nSFX S 0 -lo .\n");
    WriteBytes(dictionary, "2\nhouse/SBE\nWell-Known/S\n");
    BuildOptions options;
    options.cuts = L"-";
    options.hunspell_dictionaries = {dictionary};
    ASSERT_TRUE(BuildDictionary({}, temp / L"out", options));
    EXPECT_EQ(ReadBytes(temp / L"out" / "ho_.dic"), "house,72000\r\nhouses,72000\r\n")
        << "of what endings join by a hyphen the parts alone";
    EXPECT_EQ(ReadBytes(temp / L"out" / "we_.dic"), "well,87400\r\nwell-known,87425\r\n");
    EXPECT_EQ(ReadBytes(temp / L"out" / kCompoundsFile), "house,10\r\nhouses,8\r\n");
}

TEST(BuildDictionary, LeavesOutWhatWouldHideSlips) {
    TempDir temp;
    const Path list = temp / L"list.txt";
    const Path in_use = temp / L"in-use.txt";
    WriteBytes(list, "for\nfo\nfort\nFoe\nForde\nFordes\nUno\nlong-forde\nzyx\n");
    WriteBytes(in_use, "for\nfort\nuno\n");
    BuildOptions options;
    options.cuts = L"-";
    options.in_use = *UsageList::Read(in_use);
    ASSERT_TRUE(BuildDictionary({&list, 1}, temp / L"out", options));
    EXPECT_EQ(ReadBytes(temp / L"out" / "fo_.dic"), "for,70600\r\nfordes,70632\r\nfort,70630\r\n")
        << "no rare short word one letter from a common one, no short name that nobody uses";
    EXPECT_NE(ReadBytes(temp / L"out" / "un_.dic"), "") << "a short name in use";
    EXPECT_NE(ReadBytes(temp / L"out" / "zy_.dic"), "") << "rare, and near nothing";

    WriteBytes(list, "Storting\nsortinn\nFoe\nl'a\n");
    WriteBytes(in_use, "sorting\na\nla\n");
    options.any_short_names = true;
    options.in_use = options.names_in_use = *UsageList::Read(in_use);
    ASSERT_TRUE(BuildDictionary({&list, 1}, temp / L"names", options));
    EXPECT_EQ(ReadBytes(temp / L"names" / "st_.dic"), "") << "a name near a common word";
    EXPECT_NE(ReadBytes(temp / L"names" / "so_.dic"), "") << "no name";
    EXPECT_NE(ReadBytes(temp / L"names" / "fo_.dic"), "") << "a short name, near nothing";
    EXPECT_NE(ReadBytes(temp / L"names" / "l_.dic"), "") << "what is joined to a short word";
}

TEST(BuildDictionary, SaysWhichFileFailed) {
    TempDir temp;
    const Path missing = temp / L"missing.txt";
    const Result<BuildReport> unread = BuildDictionary({&missing, 1}, temp / L"out", {});
    ASSERT_FALSE(unread);
    EXPECT_EQ(unread.error().where, missing);

    const Path list = temp / L"list.txt";
    WriteBytes(list, "hello\n");
    BuildOptions options;
    options.excluded_lists = {missing};
    EXPECT_FALSE(BuildDictionary({&list, 1}, temp / L"out", options));
    std::filesystem::create_directories(temp / L"out" / "he_.dic" / "inside");
    EXPECT_FALSE(BuildDictionary({&list, 1}, temp / L"out", {}));
    EXPECT_FALSE(BuildDictionary({&list, 1}, list / "below a file", {}));
}

}  // namespace
}  // namespace wordhawk
