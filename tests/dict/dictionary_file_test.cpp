#include "dict/dictionary_file.h"

#include "dict/phonetic_key.h"
#include "dict/sorted_lines.h"
#include "tests/support/random_text.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace wordhawk {
namespace {

using test::Random;

TEST(DictionaryFile, FindsEntriesByTheirPatterns) {
    struct Case {
        std::string_view bytes;
        std::string_view word;
        bool keyed;
        bool keyed_or_bare;
        const char* reason;
    };
    const Case cases[] = {
        {"apple,65140\r\nbee,66000\r\n", "bee", true, true, "a line below the first"},
        {"apple,65140\r\nbee,66000\r\n", "apple", true, true, "the first line"},
        {"apple,65140\r\nbee,66000\r\n", "be", false, false, "not the beginning of a word"},
        {"apple,65140\r\nbee,66000\r\n", "pple", false, false, "not the end of a word"},
        {"apple,65140\r\nbee,66000\r\n", "66000", false, false, "not a key"},
        {"apple,65140\r\nbee\r\n", "bee", false, true, "a bare word"},
        {"bee\r\napple,65140\r\n", "bee", false, false, "a bare word on the first line"},
        {"apple,65140\nbee\n", "bee", false, false, "a bare word needs the CR"},
        {"apple,65140\nbee,66000\n", "bee", true, true, "lines may end in LF"},
        {"apple,65140\nbee,66000", "bee", true, true, "no final line end"},
        {"apple,65140\r\nbee\r", "bee", false, true, "the file may end at the CR"},
        {"apple,65140\r\nbee", "bee", false, false, "a bare word before the end of the file"},
        {"a\rbee,1\r\n", "bee", false, false, "a CR alone does not begin a line"},
        {"x,1\r\nbee\rcat,2\r\n", "bee", false, true, "but ends a bare word"},
        {"x,1\r\nbee\r\nbee,66000\r\n", "bee", true, true, "bare and keyed"},
        {"x,1\r\na,b,3\r\n", "a", true, true, "more fields do not matter"},
        {"x,1\r\na,b,3\r\n", "a,b", true, true, "a word with a comma matches across fields"},
        {"x,1\r\na\r\nb,2\r\n", "a\r\nb", true, true,
         "a word with a line break matches across lines"},
        {"", "bee", false, false, "an empty file"},
        {",1\r\n", "", true, true, "an entry without a word"},
        {"x,1\r\n\r\n", "", false, true, "an empty line is a bare empty word"},
    };
    for (const Case& c : cases) {
        const DictionaryFile file{std::string(c.bytes)};
        EXPECT_EQ(file.Contains(c.word, EntryForms::KeyedOnly), c.keyed) << c.reason;
        EXPECT_EQ(file.Contains(c.word, EntryForms::KeyedAndBare), c.keyed_or_bare) << c.reason;
    }
}

bool FoundByBytes(const std::string& bytes, const std::string& word, EntryForms forms) {
    return bytes.find("\n" + word + ",") != std::string::npos || bytes.find(word + ",") == 0 ||
           (forms == EntryForms::KeyedAndBare &&
            bytes.find("\n" + word + "\r") != std::string::npos);
}

TEST(DictionaryFile, IndexAnswersAsTheByteSearch) {
    Random random(5);
    const std::string alphabet("ab,\r\n\0", 6);
    int hits = 0;
    for (int round = 0; round < 4000; ++round) {
        const std::vector<std::string> pieces = {
            "a", "b", "ab", ",", "\r\n", "\n", "\r", std::string(1, '\0'), ",1\r\n"};
        std::string bytes;
        for (std::size_t i = random.Below(round % 8 == 0 ? 400 : 60); i > 0; --i)
            bytes += random.Pick(pieces);
        const DictionaryFile file{bytes};
        for (int probe = 0; probe < 40; ++probe) {
            std::string word;
            for (std::size_t i = random.Below(5); i > 0; --i) word += random.Pick(alphabet);
            for (const EntryForms forms : {EntryForms::KeyedOnly, EntryForms::KeyedAndBare}) {
                const bool found = FoundByBytes(bytes, word, forms);
                hits += found;
                ASSERT_EQ(file.Contains(word, forms), found)
                    << testing::PrintToString(bytes) << " " << testing::PrintToString(word);
            }
        }
    }
    EXPECT_GT(hits, 10'000);
}

TEST(FoundByHalves, FindsAllOfASortedFileAndNothingThatIsNotThere) {
    Random random(31);
    const test::TempDir folder;
    const auto random_word = [&] {
        const std::wstring word = random.Word(L"abc'\xE9", 1, random.OneIn(50) ? 900 : 8);
        return AnsiCodePage::Get(1252).Encode(word);
    };
    int hits = 0;
    for (int round = 0; round < 40; ++round) {
        std::set<std::string> words;
        for (std::size_t i = random.Below(3000); i > 0; --i) words.insert(random_word());
        std::vector<std::string> lines;
        for (const std::string& word : words) lines.push_back(word + ",65000\r\n");
        std::sort(lines.begin(), lines.end());
        const bool is_sorted = round % 2 == 0;
        for (std::size_t i = 0; !is_sorted && i < lines.size() / 10; ++i)
            lines[random.Below(lines.size())] = random.Pick(lines).substr(random.Below(3));
        std::string bytes;
        for (const std::string& line : lines) bytes += line;
        test::WriteBytes(folder / L"file", bytes);
        for (int probe = 0; probe < 300; ++probe) {
            const std::string word =
                random.OneIn(2) || lines.empty()
                    ? random_word()
                    : *std::next(words.begin(),
                                 static_cast<std::ptrdiff_t>(random.Below(words.size())));
            const bool is_there = FoundByBytes(bytes, word, EntryForms::KeyedOnly);
            hits += is_there;
            for (const bool found :
                 {FoundByHalves(bytes, word), FoundByHalvesIn(folder / L"file", word)}) {
                ASSERT_TRUE(is_sorted ? found == is_there : found <= is_there) << word;
            }
        }
    }
    EXPECT_GT(hits, 3000);
    EXPECT_FALSE(FoundByHalvesIn(folder / L"missing", "a"));
    EXPECT_FALSE(FoundByHalvesIn(folder.Folder(), "a"));
}

TEST(DictionaryFile, CountsLinesThatHoldSomething) {
    EXPECT_EQ(DictionaryFile("a,1\r\n\r\nb\nc").CountEntries(), 3u);
    EXPECT_EQ(DictionaryFile().CountEntries(), 0u);
}

struct Listed {
    std::string word;
    std::int32_t key;
    bool operator==(const Listed&) const = default;
};

/// What a search that comes with `carried` from the dictionary before sees.
std::vector<Listed> CandidatesOf(const DictionaryFile& file, std::int32_t carried,
                                 const AnsiCodePage& page) {
    const CandidateList& list = file.Candidates(page);
    std::vector<Listed> seen;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool inherits = i < list.leading_inherits && carried != 0;
        seen.push_back({file.Bytes().substr(list.offsets[i], list.lengths[i]),
                        inherits ? carried : list.keys[i]});
    }
    return seen;
}

std::vector<Listed> CandidatesLineByLine(const std::string& bytes, std::int32_t key,
                                         const AnsiCodePage& page) {
    std::vector<Listed> seen;
    for (std::size_t from = 0; from < bytes.size();) {
        const std::size_t feed = bytes.find('\n', from);
        std::string line = bytes.substr(from, feed == std::string::npos ? feed : feed - from);
        from = feed == std::string::npos ? bytes.size() : feed + 1;
        if (feed != std::string::npos && line.ends_with('\r')) line.pop_back();
        std::vector<std::string> fields(1);
        for (const char c : line) {
            if (c == ',') {
                fields.emplace_back();
            } else {
                fields.back() += c;
            }
        }
        if (fields[0].empty()) continue;
        const std::int32_t own = GetPhoneticKey(page.Decode(fields[0]), page);
        if (fields.size() == 1) key = own;
        if (fields.size() == 2) key = NumberOrZero(page.Decode(fields[1]));
        if (key == 0) key = own;
        seen.push_back({fields[0], key});
    }
    return seen;
}

TEST(CandidateList, TakesKeysFromTheirFields) {
    const DictionaryFile file(
        "three,fields,first\r\nown\r\nstored,12345\r\nzero,0\r\n,skipped\r\nwild,x1\r\nthree,9,"
        "9\r\n\r\nblank, 77 \r\nlast\r");
    const AnsiCodePage& page = AnsiCodePage::Get(1252);
    const std::vector<Listed> expected = {{"three", 84600}, {"own", 79500},   {"stored", 12345},
                                          {"zero", 90600},  {"wild", 87430},  {"three", 87430},
                                          {"blank", 77},    {"last\r", 76230}};
    EXPECT_EQ(CandidatesOf(file, 0, page), expected);
    EXPECT_EQ(CandidatesOf(file, 555, page)[0], (Listed{"three", 555}))
        << "carried over from the file before";
    EXPECT_EQ(file.Candidates(page).last_key, 76230);
}

TEST(CandidateList, EqualsTheLineByLineForm) {
    Random random(6);
    const std::vector<std::string> pieces = {"a",     "bo",   "ced",  "A",    ",",          ",",
                                             ",,",    "\r\n", "\r\n", "\n",   "\r",         "0",
                                             "12345", "-7",   " ",    "\xE9", "99999999999"};
    for (int round = 0; round < 5000; ++round) {
        std::string bytes;
        for (std::size_t i = random.Below(50); i > 0; --i) bytes += random.Pick(pieces);
        const DictionaryFile file{bytes};
        const AnsiCodePage& page = AnsiCodePage::Get(random.OneIn(2) ? 1252 : 1251);
        for (const std::int32_t carried : {0, 31337}) {
            const std::vector<Listed> expected = CandidatesLineByLine(bytes, carried, page);
            ASSERT_EQ(CandidatesOf(file, carried, page), expected) << testing::PrintToString(bytes);
            if (carried == 0) {
                ASSERT_EQ(file.Candidates(page).last_key,
                          expected.empty() ? 0 : expected.back().key);
            }
        }
    }
}

TEST(CandidateList, MaskHoldsTheLettersUnlessCaseWouldChangeThem) {
    const DictionaryFile file("abc,1\r\nAbc,1\r\n\xC9t,1\r\n");
    const CandidateList& list = file.Candidates(AnsiCodePage::Get(1252));
    EXPECT_EQ(list.masks[0], LetterMask("cab"));
    EXPECT_EQ(list.masks[1], kUnknownLetters);
    EXPECT_EQ(list.masks[2], kUnknownLetters);
    EXPECT_EQ(file.Candidates(AnsiCodePage::Get(1251)).masks[2], kUnknownLetters)
        << "a capital there too";
    EXPECT_EQ(file.Candidates(AnsiCodePage::Get(874)).masks[2], LetterMask("\xC9t"))
        << "no case there";
}

}  // namespace
}  // namespace wordhawk
