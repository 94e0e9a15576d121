#include "dict/dictionary_file.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using dictionary_edit::SortMoment;
using test::Random;

const AnsiCodePage& Page() { return AnsiCodePage::Get(1252); }

std::vector<std::string> LinesOf(const std::string& bytes) {
    std::vector<std::string> lines;
    for (std::size_t from = 0; from < bytes.size();) {
        const std::size_t feed = bytes.find('\n', from);
        lines.push_back(bytes.substr(from, feed == std::string::npos ? feed : feed - from));
        from = feed == std::string::npos ? bytes.size() : feed + 1;
        if (feed != std::string::npos && lines.back().ends_with('\r')) lines.back().pop_back();
    }
    return lines;
}

/// Appends, decodes, sorts and encodes everything, as the operation is defined.
std::string AppendedAndSorted(std::string bytes, const std::string& appended) {
    if (!bytes.empty() && !bytes.ends_with('\n')) bytes += "\r\n";
    std::vector<std::wstring> lines;
    for (const std::string& line : LinesOf(bytes + appended)) lines.push_back(Page().Decode(line));
    EXPECT_EQ(SortLines(lines, 0, static_cast<std::ptrdiff_t>(lines.size()) - 1), 0);
    std::string sorted;
    for (const std::wstring& line : lines) {
        if (!line.empty()) sorted += Page().Encode(line) + "\r\n";
    }
    return sorted;
}

bool StandsBelowFirstLine(const std::string& bytes, const std::string& entry_line) {
    const std::vector<std::string> lines = LinesOf(bytes);
    return !lines.empty() && std::count(lines.begin() + 1, lines.end(),
                                        entry_line.substr(0, entry_line.size() - 2)) > 0;
}

std::optional<std::string> EntryByEntry(std::string bytes, const std::vector<std::string>& entries,
                                        SortMoment moment) {
    bool changed = false;
    for (const std::string& entry : entries) {
        if (StandsBelowFirstLine(bytes, entry)) continue;
        changed = true;
        if (!bytes.empty() && !bytes.ends_with('\n')) bytes += "\r\n";
        bytes += entry;
        if (moment == SortMoment::AfterEachEntry) bytes = AppendedAndSorted(bytes, "");
    }
    if (!changed) return std::nullopt;
    return AppendedAndSorted(bytes, "");
}

TEST(DictionaryEdit, AddsEntriesInOrder) {
    struct Case {
        std::string before;
        std::vector<std::string> entries;
        std::optional<std::string> after;
        const char* reason;
    };
    const Case cases[] = {
        {"", {"hello,72400\r\n"}, "hello,72400\r\n", "a new file"},
        {"b,1\r\nd,2\r\n", {"c,3\r\n"}, "b,1\r\nc,3\r\nd,2\r\n", "between two lines"},
        {"b,1\r\nd,2\r\n", {"d,2\r\n"}, std::nullopt, "there already"},
        {"b,1\r\nd,2\r\n", {"b,1\r\n"}, "b,1\r\nb,1\r\nd,2\r\n", "not seen on the first line"},
        {"b,1\r\nb,1\r\nd,2\r\n", {"b,1\r\n"}, std::nullopt, "seen below it"},
        {"b,1\nd,2\n", {"c,3\r\n"}, "b,1\r\nc,3\r\nd,2\r\n", "LF becomes CR LF"},
        {"b,1\nd,2\n", {"d,2\r\n"}, std::nullopt, "a line that ends in LF is a line"},
        {"b,1\r\nd,2", {"c,3\r\n"}, "b,1\r\nc,3\r\nd,2\r\n", "no two words are glued together"},
        {"b,1\r\nd,2", {"d,2\r\n"}, std::nullopt, "the last line without its end is there too"},
        {"d,2\r\n\r\n\r\nb,1\r\n",
         {"c,3\r\n"},
         "b,1\r\nc,3\r\nd,2\r\n",
         "sorted, without empty lines"},
        {"apple,65140\r\n",
         {"apple's,65142\r\n"},
         "apple's,65142\r\napple,65140\r\n",
         "the whole line counts: an apostrophe comes before a comma"},
        {"b,1\r\n", {"B,1\r\n"}, "B,1\r\nb,1\r\n", "case counts"},
        {"b,1\r\nd\r\n", {"d,2\r\n"}, "b,1\r\nd\r\nd,2\r\n", "a bare word is another line"},
        {"\x80,1\r\n",
         {"\xE9,2\r\n"},
         "\xE9,2\r\n\x80,1\r\n",
         "by character, not by byte: the euro sign is U+20AC"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(dictionary_edit::WithEntries(c.before, c.entries, Page()), c.after) << c.reason;
    }
}

TEST(DictionaryEdit, FirstLineHidesItsEntryOnceMoreAfterEachSort) {
    const std::vector<std::string> entries = {"b,1\r\n", "a,1\r\n", "a,1\r\n", "a,1\r\n",
                                              "b,1\r\n"};
    EXPECT_EQ(dictionary_edit::WithEntries("", entries, Page(), SortMoment::AfterEachEntry),
              "a,1\r\na,1\r\nb,1\r\n");
    EXPECT_EQ(dictionary_edit::WithEntries("", entries, Page(), SortMoment::AfterLastEntry),
              "a,1\r\nb,1\r\nb,1\r\n");
}

TEST(DictionaryEdit, AddsAsAppendingAndSortingDoes) {
    Random random(7);
    const std::vector<std::string> words = {"a", "b", "b's", "ba", "\xE9", "\x80", "c"};
    const std::vector<std::string> ends = {"\r\n", "\r\n", "\r\n", "\n", "\r\n\r\n"};
    int unchanged = 0;
    for (int round = 0; round < 4000; ++round) {
        std::string bytes;
        for (std::size_t i = random.Below(8); i > 0; --i) {
            bytes += random.Pick(words);
            if (!random.OneIn(4)) bytes += random.OneIn(9) ? ",2" : ",1";
            if (i > 1 || !random.OneIn(3)) bytes += random.Pick(ends);
        }
        // Half of the files are in order, as those that the program wrote.
        if (random.OneIn(2)) bytes = AppendedAndSorted(bytes, "");
        std::vector<std::string> entries;
        for (std::size_t i = random.Below(6); i > 0; --i)
            entries.push_back(random.Pick(words) + ",1\r\n");
        for (const SortMoment moment : {SortMoment::AfterLastEntry, SortMoment::AfterEachEntry}) {
            const auto expected = EntryByEntry(bytes, entries, moment);
            unchanged += !expected;
            ASSERT_EQ(dictionary_edit::WithEntries(bytes, entries, Page(), moment), expected)
                << testing::PrintToString(bytes) << testing::PrintToString(entries);
        }
        for (const std::string& entry : entries) {
            ASSERT_EQ(dictionary_edit::HasEntryBelowFirstLine(bytes, entry),
                      StandsBelowFirstLine(bytes, entry));
        }
    }
    EXPECT_GT(unchanged, 100);
}

TEST(DictionaryEdit, RemovesTheFirstEqualLine) {
    struct Case {
        std::string before;
        std::string entry;
        std::optional<std::string> after;
        const char* reason;
    };
    const Case cases[] = {
        {"a,1\r\nb,2\r\nc,3\r\n", "b,2", "a,1\r\nc,3\r\n", "in the middle"},
        {"a,1\r\nb,2\r\n", "a,1", "b,2\r\n", "the first line too"},
        {"a,1\r\na,1\r\n", "a,1", "a,1\r\n", "one only"},
        {"c,3\r\n\r\na,1\r\nb,2", "a,1", "c,3\r\nb,2\r\n", "the order stays, empty lines go"},
        {"a,1\nb,2\n", "b,2", "a,1\r\n", "LF files"},
        {"a,1\r\n", "a,1", "", "the last one"},
        {"a,1\r\nb\r\n", "b,66000", std::nullopt, "a bare word is not the entry"},
        {"a,1\r\nb,22\r\n", "b,2", std::nullopt, "nor another key"},
        {"", "a,1", std::nullopt, "an empty file"},
        {"\r\n", "", std::nullopt, "an empty line is no entry"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(dictionary_edit::WithoutEntry(c.before, c.entry), c.after) << c.reason;
    }
}

TEST(SortLines, SortsTheRangeOnlyAndRefusesOthers) {
    std::vector<std::wstring> lines = {L"d", L"c", L"\u00E9", L"B", L"a"};
    EXPECT_EQ(SortLines(lines, 1, 3), 0);
    EXPECT_EQ(lines, (std::vector<std::wstring>{L"d", L"B", L"c", L"\u00E9", L"a"}));
    EXPECT_EQ(SortLines(lines, 0, 5), 1);
    EXPECT_EQ(SortLines(lines, -1, 2), 1);
    EXPECT_EQ(SortLines(lines, 3, 1), 1);
    EXPECT_EQ(lines[1], L"B") << "a refused range changes nothing";
    std::vector<std::wstring> none;
    EXPECT_EQ(SortLines(none, 0, -1), 0);
}

TEST(EntryLine, IsRefusedWhereItCouldNotBeReadBack) {
    EXPECT_EQ(CheckedEntryLine(L"Hello", Page()).value(), "hello,72400\r\n");
    EXPECT_EQ(CheckedEntryLine(L"\u00C9T\u00C9", Page()).value(), "\xE9t\xE9,20130\r\n");
    for (const std::wstring_view word :
         {L"", L"a,b", L"a\r\nb", L"a\rb", L"a\tb", L"\u65E5", L"\x2019\x0119"}) {
        EXPECT_FALSE(CheckedEntryLine(word, Page())) << testing::PrintToString(word);
    }
    EXPECT_FALSE(CheckedEntryLine(std::wstring_view(L"a\0b", 3), Page()));
}

}  // namespace
}  // namespace wordhawk
