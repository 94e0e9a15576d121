#include "dict/dictionary_file.h"
#include "tests/fuzz/rounds.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace wordhawk {
namespace {

using dictionary_edit::SortMoment;
using test::Random;

std::string RandomBytes(Random& random, std::size_t longest) {
    static const std::string kSpecial(",,\r\n\r\n\0\x1A 0-9aA\x80\xFF\xE9", 17);
    std::string bytes(random.Below(longest + 1), '\0');
    for (char& c : bytes)
        c = random.OneIn(2) ? random.Pick(kSpecial) : static_cast<char>(random.Below(256));
    return bytes;
}

std::string ValidFile(Random& random, const AnsiCodePage& page) {
    std::string bytes;
    for (std::size_t i = random.Below(30); i > 0; --i)
        bytes += EntryLine(random.Word(L"abcde'", 1, 6), page);
    return random.OneIn(2) ? dictionary_edit::SortedDistinct(bytes, page) : bytes;
}

void Mutate(Random& random, std::string& bytes) {
    const std::size_t at = random.Below(bytes.size() + 1);
    const std::size_t length = random.Below(std::min<std::size_t>(bytes.size() - at, 20) + 1);
    switch (random.Below(6)) {
        case 0:
            if (at < bytes.size())
                bytes[at] = static_cast<char>(bytes[at] ^ (1 << random.Below(8)));
            break;
        case 1: bytes.insert(at, RandomBytes(random, 6)); break;
        case 2: bytes.erase(at, length); break;
        case 3: bytes.insert(random.Below(bytes.size() + 1), bytes.substr(at, length)); break;
        case 4: bytes.resize(at); break;
        default: bytes.replace(at, length, RandomBytes(random, 10));
    }
}

std::vector<std::string> LinesOf(const std::string& bytes) {
    std::vector<std::string> lines;
    for (std::size_t from = 0; from < bytes.size();) {
        const std::size_t feed = bytes.find('\n', from);
        std::string line = bytes.substr(from, feed == std::string::npos ? feed : feed - from);
        from = feed == std::string::npos ? bytes.size() : feed + 1;
        if (feed != std::string::npos && line.ends_with('\r')) line.pop_back();
        lines.push_back(std::move(line));
    }
    return lines;
}

std::map<std::string, int> Counted(const std::vector<std::string>& lines) {
    std::map<std::string, int> counts;
    for (const std::string& line : lines) {
        if (!line.empty()) ++counts[line];
    }
    return counts;
}

void CheckLookup(const std::string& bytes, const std::string& word) {
    const bool keyed =
        bytes.find("\n" + word + ",") != std::string::npos || bytes.starts_with(word + ",");
    const bool bare = bytes.find("\n" + word + "\r") != std::string::npos;
    const DictionaryFile file{bytes};
    ASSERT_EQ(file.Contains(word, EntryForms::KeyedOnly), keyed);
    ASSERT_EQ(file.Contains(word, EntryForms::KeyedAndBare), keyed || bare);
}

void CheckCandidates(const std::string& bytes, const AnsiCodePage& page) {
    const DictionaryFile file{bytes};
    const CandidateList& list = file.Candidates(page);
    const std::vector<std::string> lines = LinesOf(bytes);
    ASSERT_EQ(list.size(), static_cast<std::size_t>(
                               std::count_if(lines.begin(), lines.end(), [](const auto& line) {
                                   return !line.substr(0, line.find(',')).empty();
                               })));
    ASSERT_EQ(list.masks.size(), list.size());
    for (std::size_t i = 0; i < list.size(); ++i) {
        ASSERT_LE(std::size_t{list.offsets[i]} + list.lengths[i], bytes.size());
        const std::string word = bytes.substr(list.offsets[i], list.lengths[i]);
        ASSERT_EQ(word.find_first_of(",\n"), std::string::npos);
        ASSERT_EQ(LetterMask(word) & ~list.masks[i], 0u);
    }
    ASSERT_LE(list.leading_inherits, list.size());
}

void CheckAddition(const std::string& bytes, const std::vector<std::string>& entries,
                   const AnsiCodePage& page, SortMoment moment) {
    const std::optional<std::string> changed =
        dictionary_edit::WithEntries(bytes, entries, page, moment);
    std::map<std::string, int> before = Counted(LinesOf(bytes));
    for (const std::string& entry : entries) {
        const std::string line = entry.substr(0, entry.size() - 2);
        if (!changed) {
            ASSERT_GE(before[line], 1);
            continue;
        }
        const DictionaryFile file{*changed};
        ASSERT_TRUE(file.Contains(line.substr(0, line.find(',')), EntryForms::KeyedOnly));
    }
    if (!changed) return;
    std::vector<std::wstring> decoded;
    for (const std::string& line : LinesOf(*changed)) {
        ASSERT_FALSE(line.empty());
        decoded.push_back(page.Decode(line));
    }
    ASSERT_TRUE(std::is_sorted(decoded.begin(), decoded.end()));
    ASSERT_TRUE(changed->ends_with("\r\n"));
    // Nothing is lost, and nothing but the entries comes in.
    for (const auto& [line, count] : Counted(LinesOf(*changed))) {
        const bool is_entry =
            std::find(entries.begin(), entries.end(), line + "\r\n") != entries.end();
        ASSERT_GE(count, before[line]);
        ASSERT_TRUE(is_entry || count == before[line]);
        before.erase(line);
    }
    ASSERT_TRUE(before.empty());
}

void CheckRemoval(const std::string& bytes, const std::string& entry) {
    const std::optional<std::string> changed = dictionary_edit::WithoutEntry(bytes, entry);
    std::map<std::string, int> expected = Counted(LinesOf(bytes));
    ASSERT_EQ(changed.has_value(), expected.contains(entry));
    if (!changed) return;
    if (--expected[entry] == 0) expected.erase(entry);
    ASSERT_EQ(Counted(LinesOf(*changed)), expected);
}

TEST(FuzzDictionaryFile, KeepsItsPromisesWhateverTheBytes) {
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        Random random(test::Seed() + round);
        const AnsiCodePage& page = AnsiCodePage::Get(random.OneIn(3) ? 1251 : 1252);
        std::string bytes = ValidFile(random, page);
        for (std::size_t i = random.Below(12); i > 0; --i) Mutate(random, bytes);
        SCOPED_TRACE("round " + std::to_string(round) + " " + testing::PrintToString(bytes));

        const std::vector<std::string> lines = LinesOf(bytes);
        std::vector<std::string> words = {"", RandomBytes(random, 3),
                                          bytes.substr(random.Below(bytes.size() + 1), 4)};
        std::vector<std::string> entries;
        for (int i = 0; i < 4; ++i) {
            const std::string line = lines.empty() ? std::string() : random.Pick(lines);
            words.push_back(line.substr(0, line.find_first_of(",\r")));
            if (random.OneIn(2) && line.find(',') != std::string::npos) {
                entries.push_back(line + "\r\n");
            } else {
                entries.push_back(EntryLine(random.Word(L"abcde'\u00E9\u0416", 1, 4), page));
            }
        }
        for (const std::string& word : words) CheckLookup(bytes, word);
        CheckCandidates(bytes, page);
        CheckAddition(bytes, entries, page, SortMoment::AfterLastEntry);
        CheckAddition(bytes, entries, page, SortMoment::AfterEachEntry);
        for (const std::string& entry : entries)
            CheckRemoval(bytes, entry.substr(0, entry.size() - 2));
        CheckRemoval(bytes, lines.empty() ? "x" : lines.front());
        if (testing::Test::HasFatalFailure()) return;
    }
}

}  // namespace
}  // namespace wordhawk
