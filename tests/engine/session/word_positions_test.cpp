#include "engine/session/word_positions.h"

#include "engine/check/word_characters.h"
#include "platform/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace wordhawk {
namespace {

TEST(FindWordFrom, FindsWholeWordsOfAnyCase) {
    struct Case {
        const wchar_t* text;
        const wchar_t* word;
        std::size_t from;
        TextOffset expected;
        const char* why;
    };
    const Case cases[] = {
        {L"concatenate", L"cat", 0, -1, "no part of a longer word"},
        {L"scat cats", L"cat", 0, -1, "neither its end nor its beginning"},
        {L"a Cat", L"cat", 0, 2, "capitals in the text"},
        {L"CAT", L"Cat", 0, 0, "the whole text; capitals in the word"},
        {L"cat cat", L"cat", 1, 4, "behind the offset"},
        {L"cat cat", L"cat", 4, 4, "at the offset"},
        {L"concat", L"cat", 3, -1, "what stands before the offset counts"},
        {L"cat", L"cat", 1, -1, "only forward"},
        {L"cat", L"cat", 99, -1, "behind the end"},
        {L"cat", L"", 0, -1, "an empty word"},
        {L"", L"cat", 0, -1, "an empty text"},
        {L"ca", L"cat", 0, -1, "a text shorter than the word"},
        {L"cat's", L"cat", 0, 0, "an apostrophe ends a word"},
        {L"isn\x2019t", L"isn", 0, 0, "a typographic one too"},
        {L"tom-cat_x", L"cat", 0, 4, "so do hyphen and underscore"},
        {L"cat5 cat", L"cat", 0, 5, "a digit does not"},
        {L"cat\x00B9", L"cat", 0, 0, "a note number does"},
        {L"\x00E9"
         L"cat cat\x0301 cat",
         L"cat", 0, 10, "accents and combining marks do not"},
        {L"\x0416\x0423\x041A", L"\x0436\x0443\x043A", 0, 0, "Cyrillic capitals"},
        {L"cat\xD83D\xDE00", L"cat", 0, 0, "a picture ends a word"},
        {L"x\rcat\ry", L"cat", 0, 2, "paragraphs separate"},
        {L"don't", L"don't", 0, 0, "an apostrophe within"},
        {L"say (hello) x", L"(HELLO)", 0, 4, "punctuation at the ends"},
        {L"say(hello) (hello)", L"(hello)", 0, 11, "which also needs a free neighbour"},
        {L"new  york new york", L"new york", 0, 10, "a phrase, blank for blank"},
        {L"a -- b", L"--", 0, 2, "no word character at all"},
        {L"a--", L"--", 0, -1, "no word character, but one beside"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FindWordFrom(c.text, c.word, c.from), c.expected) << c.why;
    }
}

TEST(FindWordFrom, WordCharactersDoNotDependOnCase) {
    for (unsigned c = 0; c < 65536; ++c) {
        const auto unit = static_cast<wchar_t>(c);
        ASSERT_EQ(IsWordCharacter(unit), IsWordCharacter(LowerChar(unit))) << std::hex << c;
    }
}

/// Change All as it reads: search, replace, search again behind the inserted text.
std::wstring ReplaceStepByStep(std::wstring text, const std::wstring& word,
                               const std::wstring& by) {
    std::size_t from = 0;
    for (TextOffset found; (found = FindWordFrom(text, word, from)) != kNotFound;) {
        text.replace(static_cast<std::size_t>(found), word.size(), by);
        from = static_cast<std::size_t>(found) + by.size();
    }
    return text;
}

std::wstring ReplaceAtStarts(std::wstring text, const std::wstring& word, const std::wstring& by) {
    const std::vector<std::size_t> starts = ReplacementStarts(text, word, by);
    for (auto start = starts.rbegin(); start != starts.rend(); ++start) {
        text.replace(*start, word.size(), by);
    }
    return text;
}

TEST(ReplacementStarts, AreThoseOfReplacingStepByStep) {
    EXPECT_EQ(ReplaceAtStarts(L"Cat cat concat CAT", L"cat", L"Cat"), L"Cat Cat concat Cat");
    EXPECT_EQ(ReplaceAtStarts(L"(a)(a)(a)", L"(a)", L"b"), L"b(a)b")
        << "the inserted letter hides the match next to it";
    EXPECT_EQ(ReplaceAtStarts(L"(a)(a)", L"(a)", L""), L"");
    EXPECT_EQ(ReplaceAtStarts(L" -a-a-a", L"-a", L""), L" ")
        << "what stands before a removed match stands before the next";
    std::mt19937 random(11);
    const std::wstring letters = L"aA'( )";
    const auto text_of = [&](std::size_t longest) {
        std::wstring text(random() % (longest + 1), L' ');
        for (wchar_t& c : text) c = letters[random() % letters.size()];
        return text;
    };
    for (int i = 0; i < 20000; ++i) {
        const std::wstring text = text_of(16), word = text_of(4), by = text_of(3);
        ASSERT_EQ(ReplaceAtStarts(text, word, by), ReplaceStepByStep(text, word, by))
            << ToUtf8(text) << " | " << ToUtf8(word) << " | " << ToUtf8(by);
    }
}

/// Checks every answer of the index against the plain search.
void ExpectAllPlaces(const WordPositions& index, const std::vector<std::wstring>& words,
                     const std::vector<WordPositions::Id>& ids, const std::wstring& text) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        TextOffset place = kNotFound;
        do {
            const TextOffset from = place + 1;
            place = FindWordFrom(text, words[i], static_cast<std::size_t>(from));
            ASSERT_EQ(index.Next(ids[i], from), place) << "word <" << ToUtf8(words[i]) << "> from "
                                                       << from << " in <" << ToUtf8(text) << ">";
        } while (place != kNotFound);
        std::size_t count = 0;
        for (TextOffset from = 0;
             (from = FindWordFrom(text, words[i], static_cast<std::size_t>(from))) != kNotFound;
             from += static_cast<TextOffset>(words[i].size())) {
            ++count;
        }
        ASSERT_EQ(index.Count(ids[i]), count) << ToUtf8(words[i]) << " in " << ToUtf8(text);
    }
}

/// Texts and words of few letters, so that words overlap, touch and come back.
class RandomText {
  public:
    explicit RandomText(unsigned seed) : random_(seed) {}
    std::size_t Number(std::size_t below) { return random_() % below; }
    std::wstring Of(std::size_t longest) {
        static const std::wstring letters = L"aabAB1'-  \r\x00E9\x00C9\x0301\xD83D\xDE00";
        std::wstring text(Number(longest + 1), L' ');
        for (wchar_t& c : text) c = letters[Number(letters.size())];
        return text;
    }

  private:
    std::mt19937 random_;
};

TEST(WordPositions, EqualThePlainSearchThroughAnyEdits) {
    for (unsigned seed = 1; seed <= 400; ++seed) {
        RandomText random(seed);
        std::wstring text = random.Of(120);
        std::vector<std::wstring> words(1 + random.Number(12));
        for (std::wstring& word : words) word = random.Of(seed % 8 == 0 ? 9 : 3);
        WordPositions index;
        std::vector<WordPositions::Id> ids;
        for (WordPositions::Id id = index.AddUnscanned(words); ids.size() < words.size(); ++id) {
            ids.push_back(id);
        }
        index.Scan(text);
        ASSERT_NO_FATAL_FAILURE(ExpectAllPlaces(index, words, ids, text)) << "seed " << seed;
        for (int step = 0; step < 25; ++step) {
            const std::size_t start = random.Number(text.size() + 1);
            const std::size_t removed =
                random.Number(std::min<std::size_t>(7, text.size() - start + 1));
            const std::wstring inserted = random.Of(5);
            text.replace(start, removed, inserted);
            index.Replaced(text, {&start, 1}, removed, inserted.size());
            if (step % 5 == 1) {
                const std::size_t gone = random.Number(words.size());
                index.Remove(ids[gone]);
                EXPECT_EQ(index.First(ids[gone]), kNotFound);
                words[gone] = random.Of(3);
                ids[gone] = index.Add(words[gone], text);
            }
            if (step % 5 == 3) {
                const std::size_t i = random.Number(words.size());
                const std::vector<std::size_t> starts =
                    index.ReplacementStarts(ids[i], text, inserted);
                ASSERT_EQ(starts, ReplacementStarts(text, words[i], inserted));
                if (starts.empty()) continue;
                for (auto at = starts.rbegin(); at != starts.rend(); ++at) {
                    text.replace(*at, words[i].size(), inserted);
                }
                index.Replaced(text, starts, words[i].size(), inserted.size());
            }
            ASSERT_NO_FATAL_FAILURE(ExpectAllPlaces(index, words, ids, text))
                << "seed " << seed << " step " << step;
        }
        index.Scan(text);
        ASSERT_NO_FATAL_FAILURE(ExpectAllPlaces(index, words, ids, text)) << "seed " << seed;
    }
}

TEST(WordPositions, ManyWordsShareTheTable) {
    std::vector<std::wstring> words;
    std::wstring text;
    for (int i = 0; i < 3000; ++i) {
        words.push_back(L"l'w" + std::to_wstring(i));
        text += words.back() + L" w" + std::to_wstring(i) + L" ";
    }
    WordPositions index;
    index.AddUnscanned(words);
    index.Scan(text);
    TextOffset before = kNotFound;
    for (WordPositions::Id id = 0; id < words.size(); ++id) {
        ASSERT_EQ(index.Count(id), 1u) << id;
        ASSERT_GT(index.First(id), before) << id;
        before = index.First(id);
    }
}

TEST(WordPositions, AWordBetweenTwoReplacementsIsCountedOnce) {
    std::wstring text = L"a'a and then a'a";
    WordPositions index;
    const WordPositions::Id a = index.Add(L"a", text);
    const WordPositions::Id both = index.Add(L"b'b", text);
    const std::vector<std::size_t> starts = index.ReplacementStarts(a, text, L"b");
    text = L"b'b and then b'b";
    index.Replaced(text, starts, 1, 1);
    EXPECT_EQ(index.First(a), kNotFound);
    EXPECT_EQ(index.First(both), 0);
    EXPECT_EQ(index.Next(both, 1), 13);
    EXPECT_EQ(index.Next(both, 14), kNotFound);
    EXPECT_EQ(index.Count(both), 2u);
    index.Remove(both);
    index.Scan(text);
    EXPECT_EQ(index.First(both), kNotFound) << "a removed word stays out";
}

TEST(WordPositions, ANegativeStartFindsNothing) {
    WordPositions index;
    const WordPositions::Id id = index.Add(L"cat", L"cat");
    EXPECT_EQ(index.First(id), 0);
    EXPECT_EQ(index.Next(id, kNotFound), kNotFound);
}

}  // namespace
}  // namespace wordhawk
