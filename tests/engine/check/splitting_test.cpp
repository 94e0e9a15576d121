#include "app/apostrophes.h"
#include "app/delimiter_flags.h"
#include "engine/check/line_words.h"
#include "engine/check/modSubs.h"
#include "engine/check/word_scanner.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace wordhawk {
namespace {

using test::Random;

const AnsiCodePage& Latin() { return AnsiCodePage::Get(1252); }

SplitRules DefaultRules() {
    SplitRules rules;
    rules.delimiters = BuildDelimiters(DelimiterFlagStore(), Latin());
    return rules;
}

TEST(StripDelimiters, PairsTestedAndStrippedCharacters) {
    const struct {
        std::wstring word, expected;
        const char* why;
    } cases[] = {
        {L"'tis", L"tis", "an apostrophe goes"},
        {L"dogs'", L"dogs", "at either end"},
        {L"''x''", L"x", "all of them"},
        {L"(hello)", L"(hello)", "a bracket alone stays"},
        {L"(hello\x2018", L"(hello", "round 2 strips the left quote"},
        {L"[word(", L"[word", "round 3"},
        {L"{word)", L"{word", "round 4"},
        {L"<word[", L"<word", "round 5"},
        {L":word]", L":word", "round 6"},
        {L"!word{", L"!word", "round 7"},
        {L".word}", L".word", "round 8"},
        {L"\x2018word<", L"\x2018word", "round 9"},
        {L")word>", L")word", "round 10"},
        {L"]word:", L"word:", "round 6 sees the colon before round 11 could"},
        {L"]word", L"]word", "round 11 finds no colon to strip"},
        {L"}word?", L"}word", "round 12"},
        {L">word!", L">word", "round 13"},
        {L"?word\"", L"?word", "round 14"},
        {L"\"word.", L"\"word", "round 15"},
        {L" x ", L"x", "blanks go first"},
        {L"'", L"", "nothing is left of a lone apostrophe"},
        {L"", L"", "empty"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(modSubs::StripDelimiters(c.word, modSubs::kEdgeDelimiters), c.expected) << c.why;
    }
}

TEST(CleanWord, SkipsWhatTheRulesExclude) {
    SplitRules keep_all = DefaultRules();
    keep_all.ignore_numbers = keep_all.ignore_upper_case = false;
    SplitRules numbers_only = DefaultRules();
    numbers_only.ignore_upper_case = false;
    SplitRules capitals_only = DefaultRules();
    capitals_only.ignore_numbers = false;
    const struct {
        std::wstring word;
        const SplitRules& rules;
        int result;
        std::wstring cleaned;
    } cases[] = {
        {L"a", keep_all, -1, L"a"},
        {L"ab", keep_all, 0, L"ab"},
        {L"'a'", keep_all, -1, L"a"},
        {L"abc123", numbers_only, -1, L""},
        {L"abc123", keep_all, 0, L"abc123"},
        {L"123", capitals_only, -1, L""},
        {L"--", capitals_only, -1, L""},
        {L"ABC", capitals_only, -1, L""},
        {L"aBC", capitals_only, 0, L"aBC"},
        {L"'quoted'", keep_all, 0, L"quoted"},
        {L"\xB5\x192", capitals_only, -1, L""},  // neither has an upper form
    };
    for (const auto& c : cases) {
        std::wstring_view word = c.word;
        EXPECT_EQ(modSubs::CleanWord(word, c.rules), c.result) << ToUtf8(c.word);
        EXPECT_EQ(word, c.cleaned) << ToUtf8(c.word);
    }
}

TEST(ExtractLineWords, GivesDistinctWordsInOrder) {
    const SplitRules rules = DefaultRules();
    using Words = std::vector<std::wstring>;
    EXPECT_EQ(ExtractLineWords(L"the the The", rules), Words{L"the"});
    EXPECT_EQ(ExtractLineWords(L"a b", rules), Words{});
    EXPECT_EQ(ExtractLineWords(L"  two  blanks\r\nmore two ", rules),
              (Words{L"two", L"blanks", L"more"}));
    EXPECT_EQ(ExtractLineWords(L"one,x,one two", rules), (Words{L"one", L"x", L"two"}));
}

/// Lower-cased as a look-up has it.
std::wstring Read(std::wstring_view text, const SplitRules& rules) {
    return rules.straight_apostrophe ? WithStraightApostrophes(Lower(text)) : Lower(text);
}

struct Found {
    std::wstring word;
    std::uint64_t offset;
};

std::vector<Found> ScanInBlocks(const std::wstring& text, const SplitRules& rules, Random* cuts) {
    WordScanner scanner(rules, Latin());
    std::vector<Found> found;
    const auto sink = [&](const auto& word) {
        const std::wstring word_text(word.text.begin(), word.text.end());
        if (!word.bytes.empty()) {
            EXPECT_EQ(Latin().Decode(word.bytes), Read(word_text, rules));
            PackedWord packed;
            for (const char byte : word.bytes) packed.Append(static_cast<unsigned char>(byte));
            EXPECT_EQ(word.packed,
                      word.bytes.size() <= PackedWord::kLongest ? packed : PackedWord{});
        }
        found.push_back({Read(word_text, rules), word.offset});
    };
    for (std::size_t from = 0; from < text.size();) {
        std::size_t end = cuts == nullptr ? std::wstring::npos
                                          : text.find_first_of(L" \r\n", from + cuts->Below(30));
        end = end == std::wstring::npos ? text.size() : end + 1;
        const std::wstring_view block = std::wstring_view(text).substr(from, end - from);
        const std::string utf8 = ToUtf8(block);
        if (cuts != nullptr && IsAscii(utf8) && cuts->OneIn(2)) {
            scanner.ScanAscii(utf8, sink);
        } else {
            scanner.Scan(block, sink);
        }
        from = end;
    }
    return found;
}

/// Line breaks of any kind as CR LF, then the splitting steps one after another.
std::vector<std::wstring> SplitStepByStep(const std::wstring& text, const SplitRules& rules) {
    std::wstring normal;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\r' || text[i] == L'\n') {
            if (text[i] == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n') ++i;
            normal += L"\r\n";
        } else {
            normal += text[i];
        }
    }
    Progress none;
    const std::wstring lower = Lower(ReplaceDelimiters(normal, rules, L" ", none));
    std::vector<std::wstring> words;
    for (const std::wstring& word : ExtractLineWords(lower, rules)) {
        if (std::find(words.begin(), words.end(), word) == words.end()) words.push_back(word);
    }
    return words;
}

TEST(WordScanner, OnePassEqualsTheStepsOneByOne) {
    const std::vector<std::wstring> pieces = {
        L"a",
        L"b",
        L"The",
        L"don't",
        L"'",
        L" ",
        L"  ",
        L"\r\n",
        L"\n",
        L"\r",
        L"-",
        L".",
        L",",
        L"1",
        L"23",
        L"http:",
        L"www.x",
        L"(",
        L"\x2018",
        L"\x2019",
        L"\x410",
        L"\x431",
        L"\xE9",
        L"\xDF",
        L"\xB5",
        L"\x130",
        L"\xD83D",
        L"\xDE00",
        L"\xFEFF",
        L"ABC",
        L"\t",
        L"?",
        L"\"",
        L"word",
        L"\xA0",
        L"mailto:",
        L"]",
        L"}",
        L"\x152",
        std::wstring(1, L'\0'),
        L"abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyzabcdefghijklmnopqr"};
    const std::wstring all_delimiters = DefaultRules().delimiters;
    Random random(11);
    for (int round = 0; round < 8'000; ++round) {
        SplitRules rules;
        rules.ignore_webs = random.OneIn(2);
        rules.ignore_numbers = random.OneIn(2);
        rules.ignore_upper_case = random.OneIn(2);
        rules.straight_apostrophe = random.OneIn(2);
        for (const wchar_t c : all_delimiters) {
            if (rules.straight_apostrophe && c == kTypographicApostrophe) continue;
            if (!random.OneIn(round % 3 == 0 ? 2 : 50)) rules.delimiters.push_back(c);
        }
        const std::wstring text = random.Mix(pieces, 1 + random.Below(40));
        const std::vector<Found> found = ScanInBlocks(text, rules, &random);
        std::vector<std::wstring> distinct;
        for (const Found& f : found) {
            ASSERT_EQ(Read(std::wstring_view(text).substr(f.offset, f.word.size()), rules), f.word)
                << "round " << round;
            if (std::find(distinct.begin(), distinct.end(), f.word) == distinct.end())
                distinct.push_back(f.word);
        }
        ASSERT_EQ(distinct, SplitStepByStep(text, rules)) << "round " << round;
    }
}

TEST(WordScanner, ReportsEveryOccurrenceInTextOrder) {
    const std::wstring text = L"One two, one.\n'Two' (ONE) it's";
    std::vector<std::pair<std::wstring, std::uint64_t>> got;
    for (const Found& f : ScanInBlocks(text, DefaultRules(), nullptr))
        got.emplace_back(f.word, f.offset);
    const std::vector<std::pair<std::wstring, std::uint64_t>> expected = {
        {L"one", 0}, {L"two", 4}, {L"one", 9}, {L"two", 15}, {L"one", 21}, {L"it's", 26}};
    EXPECT_EQ(got, expected);
}

}  // namespace
}  // namespace wordhawk
