#include "dict/word_list.h"

#include "dict/import.h"
#include "dict/word_lines.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using Entries = std::vector<std::wstring>;
using namespace std::string_literals;

TEST(WordList, IsReadInTheEncodingThatItIsIn) {
    const Entries naive = {L"na\u00EFve", L"caf\u00E9"};
    const struct {
        std::string bytes;
        Entries entries;
        const char* reason;
    } cases[] = {
        {"na\xEFve\r\ncaf\xE9\r\n", naive, "the page"},
        {"na\xC3\xAFve\ncaf\xC3\xA9", naive, "UTF-8"},
        {"\xEF\xBB\xBFna\xC3\xAFve\r\ncaf\xC3\xA9\r\n", naive, "UTF-8 with mark"},
        {"\xFF\xFEn\0a\0\xEF\0v\0e\0\n\0c\0a\0f\0\xE9\0"s, naive, "UTF-16"},
        {"\xFE\xFF\0n\0a\0\xEF\0v\0e\0\r\0\n\0c\0a\0f\0\xE9\0\n"s, naive, "UTF-16, big end first"},
        {"\xFF\xFEn\0a"s, {L"n"}, "UTF-16 cut in the middle"},
        {"\xFF\xFE", {}, "a mark alone"},
        {"", {}, "nothing"},
        {"a\rb\n\n\r\nc", {L"a\rb", L"", L"", L"c"}, "only line feeds end lines"},
    };
    const AnsiCodePage& page = AnsiCodePage::Get(1252);
    for (const auto& c : cases) EXPECT_EQ(EntriesOfWordList(c.bytes, page), c.entries) << c.reason;
}

TEST(WordList, HunspellsFormLosesItsCountAndItsFlags) {
    const struct {
        std::string bytes;
        Entries entries;
        const char* reason;
    } cases[] = {
        {"3\nhello/MS\nworld\nred\tpo:adj\n", {L"hello", L"world", L"red"}, "count and flags"},
        {"2\r\nhello/12,7\r\nkm\\/h/A\r\n", {L"hello", L"km/h"}, "number flags, a slash in a word"},
        {"50000\nhello/MS\n", {L"hello"}, "a count that does not fit, but flags"},
        {"2\nhello\nworld\n", {L"hello", L"world"}, "a count that fits, no flags"},
        {"1984\nanimal\nfarm\n", {L"1984", L"animal", L"farm"}, "a plain list with a number first"},
        {"and/or\nhello\n", {L"and/or", L"hello"}, "a plain list with a slash"},
        {"99999999999\nx/y\n", {L"99999999999", L"x/y"}, "no number of words"},
    };
    const AnsiCodePage& page = AnsiCodePage::Get(1252);
    for (const auto& c : cases) EXPECT_EQ(EntriesOfWordList(c.bytes, page), c.entries) << c.reason;
}

TEST(WordList, WordsOfADictionaryStandBeforeItsCommas) {
    EXPECT_EQ(
        WordsOfLines("apple,65140\r\nbare\r\n\r\n,5\r\n\xE9t\xE9,1\n", AnsiCodePage::Get(1252)),
        (Entries{L"apple", L"bare", L"\u00E9t\u00E9"}));
}

TEST(WordList, ImportedDictionaryIsNamedAfterItsSource) {
    const struct {
        const wchar_t* source;
        const wchar_t* name;
    } cases[] = {{L"new.dic", L"new.dic"},
                 {L"en_GB.DIC", L"en_GB.DIC"},
                 {L"words.txt", L"words.DIC"},
                 {L"words.utf8.txt", L"words.utf8.DIC"},
                 {L"words", L"words.DIC"}};
    for (const auto& c : cases) {
        EXPECT_EQ(ImportedName(Path("folder") / PathFromText(c.source)), c.name);
    }
}

}  // namespace
}  // namespace wordhawk
