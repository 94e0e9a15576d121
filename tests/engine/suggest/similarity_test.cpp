#include "engine/suggest/cLS.h"
#include "engine/suggest/modSimPercent.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <vector>

namespace wordhawk {
namespace {

using modSimPercent::SimilarityPercent;
using test::Random;

/// The whole matrix, cell by cell.
std::int32_t DistanceByMatrix(const std::wstring& source, const std::wstring& target, bool swaps) {
    const std::size_t n = source.size(), m = target.size();
    std::vector<std::vector<std::int32_t>> d(n + 1, std::vector<std::int32_t>(m + 1));
    for (std::size_t i = 0; i <= n; ++i) d[i][0] = static_cast<std::int32_t>(i);
    for (std::size_t j = 0; j <= m; ++j) d[0][j] = static_cast<std::int32_t>(j);
    for (std::size_t i = 1; i <= n; ++i) {
        for (std::size_t j = 1; j <= m; ++j) {
            const std::int32_t cost = source[i - 1] != target[j - 1];
            d[i][j] = std::min({d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + cost});
            if (swaps && i >= 2 && j >= 2 && source[i - 2] == target[j - 1] &&
                source[i - 1] == target[j - 2]) {
                const std::int32_t other = d[i - 2][j - 2] + cost;
                d[i][j] = d[i][j] == other ? 0 : std::min(d[i][j], other);
            }
        }
    }
    return d[n][m];
}

TEST(LevenshteinDistance, CountsEditsAndSwaps) {
    const struct {
        std::wstring source, target;
        std::int32_t plain, with_swaps;
    } cases[] = {
        {L"", L"abc", 3, 3},           {L"abc", L"", 3, 3},    {L"", L"", 0, 0},
        {L"kitten", L"sitting", 3, 2}, {L"ab", L"ba", 2, 1},   {L"form", L"from", 2, 1},
        {L"aba", L"bab", 2, 0},        {L"aaa", L"baa", 1, 0}, {L"abb", L"bba", 2, 1},
        {L"Teh", L"the", 3, 2},        {L"teh", L"the", 2, 1},
    };
    cLS measure;
    for (const auto& c : cases) {
        EXPECT_EQ(measure.LevenshteinDistance(c.source, c.target, Transposition::NotCounted),
                  c.plain)
            << ToUtf8(c.source);
        EXPECT_EQ(measure.LevenshteinDistance(c.source, c.target, Transposition::OneEdit),
                  c.with_swaps)
            << ToUtf8(c.source);
    }
    EXPECT_EQ(cLS::MinOf2(3, 3), 0);
    EXPECT_EQ(cLS::MinOf2(2, 3), 2);
}

TEST(LevenshteinDistance, ThreeRowsEqualTheWholeMatrix) {
    Random random(3);
    cLS measure;
    for (int round = 0; round < 20'000; ++round) {
        const std::wstring a = random.Word(L"abC", 0, 9), b = random.Word(L"abC", 0, 9);
        for (const bool swaps : {false, true}) {
            ASSERT_EQ(measure.LevenshteinDistance(
                          a, b, swaps ? Transposition::OneEdit : Transposition::NotCounted),
                      DistanceByMatrix(a, b, swaps))
                << ToUtf8(a) << " " << ToUtf8(b);
        }
    }
}

TEST(LevenshteinDistance, IsWithinALimitExactlyWhenItIsAtMostThat) {
    Random random(4);
    cLS measure;
    for (int round = 0; round < 20'000; ++round) {
        const std::wstring a = random.Word(L"abC", 0, 12), b = random.Word(L"abC", 0, 12);
        const auto limit = static_cast<std::int32_t>(random.Below(8)) - 1;
        ASSERT_EQ(measure.IsWithin(a, b, limit), DistanceByMatrix(a, b, false) <= limit)
            << ToUtf8(a) << " " << ToUtf8(b) << " " << limit;
    }
}

TEST(SimilarityPercent, ScoresKnownPairs) {
    const AnsiCodePage& page = AnsiCodePage::Get(1252);
    const struct {
        std::wstring word, candidate;
        std::int32_t candidate_key, word_key;
        std::uint8_t mode;
        std::int32_t score;
        const char* why;
    } cases[] = {
        {L"colour", L"Colour", 0, 0, 0, 100, "equal but for case"},
        {L"colour", L"colour", 1234, 1299, 2, 0, "four digits differ, equality does not help"},
        {L"colour", L"colour", 1234, 1299, 1, 0, "three digits differ"},
        {L"colour", L"colour", 1234, 1299, 0, 100, "no filter in mode 0"},
        {L"colour", L"colour", 12, 12, 2, 100, "a short key is compared whole"},
        {L"teh", L"the", 1, 1, 0, 67, "blocks only"},
        {L"recieve", L"receive", 1, 1, 0, 86, "blocks only"},
        {L"helo", L"hello", 1, 1, 0, 89, "blocks beat the wildcard's 0.75"},
        {L"form", L"farm", 1, 1, 0, 99, "one place differs: never 100"},
        {L"", L"a", 0, 0, 0, 0, "empty word"},
        {L"a", L"", 0, 0, 0, 0, "empty candidate"},
        {L"h?llo", L"hallo", 1, 1, 0, 99, "the word's own ? is a pattern"},
        {L"h#llo", L"h9llo", 1, 1, 0, 99, "and #"},
        {L"h[ae]llo", L"hallo", 1, 1, 0, 88, "and a list: a match of another length"},
        {L"\x43F\x440", L"??", 1, 1, 0, 100, "outside the page both are ? in the blocks"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(SimilarityPercent(c.word, c.candidate, c.candidate_key, c.word_key, c.mode, page),
                  c.score)
            << c.why;
    }
}

TEST(SimilarityPercent, RoundsHalvesToTheEvenNumber) {
    EXPECT_EQ(modSimPercent::PercentOf(33, 40, 40, -1.0), 82);     // 82.5
    EXPECT_EQ(modSimPercent::PercentOf(67, 80, 80, -1.0), 84);     // 83.75
    EXPECT_EQ(modSimPercent::PercentOf(167, 200, 200, -1.0), 84);  // 83.5
}

TEST(WildcardRatio, IsNegativeWithoutAMatchOfAnotherLength) {
    EXPECT_DOUBLE_EQ(modSimPercent::WildcardRatio(L"abc", L"xyzw", 3, 4), -1.0 / 3);
    EXPECT_DOUBLE_EQ(modSimPercent::WildcardRatio(L"abc", L"xyz", 3, 3), 0.0);
    EXPECT_DOUBLE_EQ(modSimPercent::WildcardRatio(L"abc", L"abx", 3, 3), 1.0);
    EXPECT_DOUBLE_EQ(modSimPercent::WildcardRatio(L"abc", L"abcd", 3, 4), 2.0 / 3);
}

/// Copy by copy, as its definition reads.
bool MatchesSomeCopy(const std::wstring& word, const std::wstring& candidate) {
    for (std::size_t i = 0; i < word.size(); ++i) {
        std::wstring pattern = word;
        pattern[i] = L'*';
        if (modSimPercent::LikePattern(candidate, pattern)) return true;
    }
    return false;
}

TEST(WildcardRatio, EqualsItsDefinitionWhateverTheWordHolds) {
    Random random(6);
    const std::vector<std::wstring> pieces = {L"a", L"b", L"c", L"a", L"b",  L"ab",
                                              L"[", L"]", L"[", L"]", L"-",  L"!",
                                              L"*", L"?", L"#", L"1", L"[!", L"[a-c]"};
    int matched = 0;
    for (int round = 0; round < 150'000; ++round) {
        const std::wstring word = random.Mix(pieces, 1 + random.Below(9));
        std::wstring candidate = random.Word(L"abcab*]-1[!", 0, 6);
        if (random.OneIn(500)) candidate += std::wstring(70, L'a');
        const auto length = static_cast<std::int32_t>(word.size());
        const bool matches = modSimPercent::WildcardRatio(word, candidate, length, length) == 1.0;
        matched += matches;
        ASSERT_EQ(matches, MatchesSomeCopy(word, candidate))
            << ToUtf8(word) << " " << ToUtf8(candidate);
    }
    EXPECT_GT(matched, 10'000);
}

TEST(LikePattern, MatchesAsThePatternOperatorDoes) {
    const struct {
        std::wstring text, pattern;
        bool matches;
    } cases[] = {
        {L"", L"", true},          {L"a", L"", false},         {L"", L"*", true},
        {L"abc", L"a*c", true},    {L"abc", L"*b*", true},     {L"abc", L"a?c", true},
        {L"ac", L"a?c", false},    {L"a1", L"a#", true},       {L"ax", L"a#", false},
        {L"b", L"[a-c]", true},    {L"d", L"[a-c]", false},    {L"d", L"[!a-c]", true},
        {L"b", L"[!a-c]", false},  {L"!", L"[!]", true},       {L"-", L"[a-]", true},
        {L"ab", L"a[]b", true},    {L"a", L"[a", false},       {L"[a", L"[[]a", true},
        {L"A", L"a", false},       {L"72400", L"72##0", true}, {L"72401", L"72##0", false},
        {L"aXbXc", L"a*X?", true}, {L"ab]", L"ab]", true},     {L"mississippi", L"m*iss*pi", true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(modSimPercent::LikePattern(c.text, c.pattern), c.matches)
            << ToUtf8(c.text) << " ~ " << ToUtf8(c.pattern);
    }
}

/// The count as its definition reads, without any bound.
std::int32_t CountBlocks(const std::string& a, const std::string& b, int f1, int l1, int f2,
                         int l2) {
    if (f1 > l1 || f2 > l2 || f1 < 1 || f2 < 1) return 0;
    int bi = 0, bj = 0, bk = 0;
    for (int i = f1; i <= l1; ++i) {
        for (int j = f2; j <= l2; ++j) {
            int k = 0;
            while (i + k <= l1 && j + k <= l2 &&
                   a[static_cast<std::size_t>(i + k - 1)] ==
                       b[static_cast<std::size_t>(j + k - 1)]) {
                if (++k > bk) {
                    bi = i;
                    bj = j;
                    bk = k;
                }
            }
        }
    }
    return bk + CountBlocks(a, b, bi + bk, l1, bj + bk, l2) +
           CountBlocks(a, b, f1, bi - 1, f2, bj - 1);
}

TEST(CommonCharCount, EqualsItsDefinition) {
    Random random(5);
    for (int round = 0; round < 20'000; ++round) {
        std::string a, b;
        const std::size_t longest =
            round % 200 == 0 ? 120 : 10;  // past what is searched start by start
        for (std::size_t i = random.Below(longest); i > 0; --i)
            a.push_back(static_cast<char>('a' + random.Below(3)));
        for (std::size_t i = random.Below(longest); i > 0; --i)
            b.push_back(static_cast<char>('a' + random.Below(3)));
        const int n = static_cast<int>(a.size()), m = static_cast<int>(b.size());
        ASSERT_EQ(modSimPercent::CommonCharCount(a, b, 1, n, 1, m), CountBlocks(a, b, 1, n, 1, m))
            << a << " " << b;
    }
}

}  // namespace
}  // namespace wordhawk
