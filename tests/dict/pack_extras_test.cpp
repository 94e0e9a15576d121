#include "dict/pack_extras.h"

#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace wordhawk {
namespace {

using test::TempDir;
using test::WriteBytes;

TEST(SortedWords, FindsEveryWordAndNoOther) {
    std::mt19937 random(5);
    std::map<std::string, unsigned> words;
    for (int i = 0; i < 3000; ++i) {
        std::string word(1 + random() % 6, ' ');
        for (char& c : word) c = "abc\xE9'-"[random() % 6];
        words[word] = random() % 20;
    }
    const SortedWords list(SortedWords::Make({words.begin(), words.end()}));
    for (int i = 0; i < 20000; ++i) {
        std::string word(random() % 8, ' ');
        for (char& c : word) c = "abc\xE9'-,\n"[random() % 8];
        const auto known = words.find(word);
        const std::optional<unsigned> found = list.ValueOf(word);
        EXPECT_EQ(found.has_value(), known != words.end()) << word;
        if (known != words.end()) {
            EXPECT_EQ(found, known->second) << word;
        }
    }
    for (const auto& [word, value] : words) EXPECT_EQ(list.ValueOf(word), value) << word;
}

TEST(SortedWords, BrokenListsDoNoHarm) {
    for (const char* bytes :
         {"", "\n", ",", "\r\n\r\n", "b", "b,", "b,x\r\n", "a,1\r\nb", ",1\r\n"}) {
        const SortedWords list{std::string(bytes)};
        EXPECT_EQ(list.ValueOf("b"), std::nullopt) << bytes;
    }
}

TEST(PackExtras, TakesCompoundsApartByTheRolesOfTheirParts) {
    const TempDir temp;
    WriteBytes(temp.Folder() / kCompoundsFile,
               SortedWords::Make({{"arbeits", kCompoundBegin | kCompoundMiddle},
                                  {"zimmer", kCompoundBegin | kCompoundMiddle | kCompoundEnd},
                                  {"ab", kCompoundBegin | kCompoundEnd},
                                  {"export", kCompoundCapital | kCompoundMiddle},
                                  {"tisch", kCompoundEnd}}));
    std::vector<Error> unreadable;
    PackExtras extras(temp.Folder(), unreadable);
    const struct {
        const char* word;
        bool is_compound;
        const char* why;
    } cases[] = {
        {"arbeitszimmer", true, "first and last"},
        {"arbeitszimmertisch", true, "one in the middle"},
        {"zimmerarbeitszimmertisch", true, "two in the middle"},
        {"zimmerarbeitszimmerarbeitstisch", false, "three in the middle"},
        {"zimmerarbeits", false, "a part that cannot be the last"},
        {"tischzimmer", false, "a part that cannot be the first"},
        {"zimmer", false, "one part is no compound"},
        {"abtisch", false, "a part of two letters"},
        {"zimmerx", false, "something left over"},
        {"", false, "nothing"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(extras.IsCompound(c.word, false), c.is_compound) << c.why;
        EXPECT_EQ(extras.IsCompound(c.word, true), c.is_compound) << c.why;
    }
    EXPECT_TRUE(extras.IsCompound("exporttisch", true));
    EXPECT_FALSE(extras.IsCompound("exporttisch", false)) << "its first part wants a capital";
    std::string endless;
    while (endless.size() < 100'000) endless += "zimmer";
    EXPECT_FALSE(extras.IsCompound(endless, false));
}

TEST(PackExtras, MissingListsHoldNothing) {
    const TempDir temp;
    std::vector<Error> unreadable;
    PackExtras extras(temp.Folder(), unreadable);
    EXPECT_FALSE(extras.IsPiece("isn"));
    EXPECT_FALSE(extras.IsCompound("zimmertisch", false));
    WriteBytes(temp.Folder() / kPiecesFile, SortedWords::Make({{"isn", 0}}));
    PackExtras with_pieces(temp.Folder(), unreadable);
    EXPECT_TRUE(with_pieces.IsPiece("isn"));
    EXPECT_FALSE(with_pieces.IsPiece("is"));
    EXPECT_TRUE(unreadable.empty()) << "missing files are no error";
}

}  // namespace
}  // namespace wordhawk
