#include "dict/dictionary_file.h"
#include "tests/fuzz/rounds.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

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

using Lines = std::vector<std::string_view>;

/// Views into `bytes`, so that millions of inputs take minutes and not hours.
Lines LinesOf(std::string_view bytes) {
    Lines lines;
    for (std::size_t from = 0; from < bytes.size();) {
        const std::size_t feed = bytes.find('\n', from);
        std::string_view line =
            bytes.substr(from, feed == std::string_view::npos ? feed : feed - from);
        from = feed == std::string_view::npos ? bytes.size() : feed + 1;
        if (feed != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
    }
    return lines;
}

/// The lines that are not empty, in order, each as often as it is there.
Lines Sorted(Lines lines) {
    std::erase(lines, std::string_view());
    std::sort(lines.begin(), lines.end());
    return lines;
}

void CheckLookup(const DictionaryFile& file, const std::string& word) {
    const std::string& bytes = file.Bytes();
    const bool keyed =
        bytes.find("\n" + word + ",") != std::string::npos || bytes.starts_with(word + ",");
    const bool bare = bytes.find("\n" + word + "\r") != std::string::npos;
    ASSERT_EQ(file.Contains(word, EntryForms::KeyedOnly), keyed);
    ASSERT_EQ(file.Contains(word, EntryForms::KeyedAndBare), keyed || bare);
}

void CheckCandidates(const DictionaryFile& file, const Lines& lines, const AnsiCodePage& page) {
    const std::string_view bytes = file.Bytes();
    const CandidateList& list = file.Candidates(page);
    ASSERT_EQ(list.size(), static_cast<std::size_t>(
                               std::count_if(lines.begin(), lines.end(), [](const auto& line) {
                                   return !line.substr(0, line.find(',')).empty();
                               })));
    ASSERT_EQ(list.masks.size(), list.size());
    for (std::size_t i = 0; i < list.size(); ++i) {
        ASSERT_LE(std::size_t{list.offsets[i]} + list.lengths[i], bytes.size());
        const std::string_view word = bytes.substr(list.offsets[i], list.lengths[i]);
        ASSERT_EQ(word.find_first_of(",\n"), std::string_view::npos);
        ASSERT_EQ(LetterMask(word) & ~list.masks[i], 0u);
    }
    ASSERT_LE(list.leading_inherits, list.size());
}

/// Nothing is lost, and nothing but the entries comes in.
void CheckAddition(const std::string& bytes, const Lines& before,
                   const std::vector<std::string>& entries, const AnsiCodePage& page,
                   SortMoment moment) {
    Lines added;
    for (const std::string& entry : entries)
        added.push_back(std::string_view(entry).substr(0, entry.size() - 2));
    const std::optional<std::string> changed =
        dictionary_edit::WithEntries(bytes, entries, page, moment);
    if (!changed) {
        for (const std::string_view line : added)
            ASSERT_TRUE(std::binary_search(before.begin(), before.end(), line));
        return;
    }
    const DictionaryFile file{*changed};
    for (const std::string_view line : added) {
        ASSERT_TRUE(
            file.Contains(std::string(line.substr(0, line.find(','))), EntryForms::KeyedOnly));
    }
    const Lines after = LinesOf(*changed);
    std::wstring last;
    for (const std::string_view line : after) {
        ASSERT_FALSE(line.empty());
        std::wstring next = page.Decode(line);
        ASSERT_LE(last, next);
        last = std::move(next);
    }
    ASSERT_TRUE(changed->ends_with("\r\n"));
    const Lines sorted = Sorted(after);
    ASSERT_TRUE(std::includes(sorted.begin(), sorted.end(), before.begin(), before.end()));
    Lines come_in;
    std::set_difference(sorted.begin(), sorted.end(), before.begin(), before.end(),
                        std::back_inserter(come_in));
    for (const std::string_view line : come_in)
        ASSERT_NE(std::find(added.begin(), added.end(), line), added.end());
}

void CheckRemoval(const std::string& bytes, Lines before, const std::string& entry) {
    const std::optional<std::string> changed = dictionary_edit::WithoutEntry(bytes, entry);
    const auto found = std::find(before.begin(), before.end(), entry);
    ASSERT_EQ(changed.has_value(), found != before.end());
    if (!changed) return;
    before.erase(found);
    ASSERT_EQ(Sorted(LinesOf(*changed)), before);
}

TEST(FuzzDictionaryFile, KeepsItsPromisesWhateverTheBytes) {
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        Random random(test::Seed() + round);
        const AnsiCodePage& page = AnsiCodePage::Get(random.OneIn(3) ? 1251 : 1252);
        std::string bytes = ValidFile(random, page);
        for (std::size_t i = random.Below(12); i > 0; --i) Mutate(random, bytes);
        const test::Input input(round, bytes);

        const Lines lines = LinesOf(bytes);
        const Lines sorted = Sorted(lines);
        std::vector<std::string> words = {"", RandomBytes(random, 3),
                                          bytes.substr(random.Below(bytes.size() + 1), 4)};
        std::vector<std::string> entries;
        for (int i = 0; i < 4; ++i) {
            const std::string_view line = lines.empty() ? std::string_view() : random.Pick(lines);
            words.emplace_back(line.substr(0, line.find_first_of(",\r")));
            if (random.OneIn(2) && line.find(',') != std::string_view::npos) {
                entries.push_back(std::string(line) + "\r\n");
            } else {
                entries.push_back(EntryLine(random.Word(L"abcde'\u00E9\u0416", 1, 4), page));
            }
        }
        const DictionaryFile file{bytes};
        for (const std::string& word : words) CheckLookup(file, word);
        CheckCandidates(file, lines, page);
        const std::string& entry = entries.front();
        switch (round % 4) {
            case 0: CheckAddition(bytes, sorted, entries, page, SortMoment::AfterLastEntry); break;
            case 1: CheckAddition(bytes, sorted, entries, page, SortMoment::AfterEachEntry); break;
            case 2: CheckRemoval(bytes, sorted, entry.substr(0, entry.size() - 2)); break;
            default: CheckRemoval(bytes, sorted, lines.empty() ? "x" : std::string(lines.front()));
        }
        if (testing::Test::HasFatalFailure()) return;
    }
}

}  // namespace
}  // namespace wordhawk
