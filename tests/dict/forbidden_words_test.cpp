#include "dict/forbidden_words.h"

#include "tests/support/dictionaries.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

const AnsiCodePage& Latin() { return AnsiCodePage::Get(1252); }

/// "word=a|b;" for each entry.
std::wstring Shown(const ForbiddenWords& words) {
    std::wstring text;
    for (const ForbiddenWords::Entry& entry : words.Entries()) {
        text += entry.word + L'=';
        for (const std::wstring& preferred : entry.preferred) text += preferred + L'|';
        text += L';';
    }
    return text;
}

TEST(ForbiddenWords, AreReadLineByLine) {
    const struct {
        std::string_view bytes;
        std::wstring shown;
        const char* why;
    } cases[] = {
        {"", L"", "empty"},
        {"teh -> the\r\nalot -> a lot,  much\n", L"teh=the|;alot=a lot|much|;", "one a line"},
        {"# note\r\n\r\n  Teh->The", L"teh=The|;", "notes, case, blanks, no last line end"},
        {"irregardless\nx ->\n-> y\n->", L"irregardless=;x=;", "without preferred ones"},
        {"teh -> the\nother\nTEH -> thee", L"teh=thee|;other=;", "the later counts"},
        {"\xEF\xBB\xBFh\xC3\xA9 -> eh\n", L"h\xE9=eh|;", "UTF-8 with a mark"},
        {{"\xFF\xFEt\0e\0h\0-\0>\0t\0h\0e\0\n\0", 20}, L"teh=the|;", "UTF-16 with a mark"},
        {"h\xE9 -> \x80\n", L"h\xE9=\x20AC|;", "ANSI"},
        {"isn\xE2\x80\x99t -> is not", L"isn't=is not|;", "apostrophes"},
        {"a -> b -> c", L"a=b -> c|;", "the first arrow"},
    };
    for (const auto& c : cases) EXPECT_EQ(Shown({c.bytes, Latin()}), c.shown) << c.why;
    const ForbiddenWords words("teh -> the\nisn't", Latin());
    EXPECT_NE(words.Find(L"TEH"), nullptr);
    EXPECT_NE(words.Find(L"isn\x2019t"), nullptr);
    EXPECT_EQ(words.Find(L"the"), nullptr);
}

TEST(ForbiddenWords, ChangeWithoutLosingTheOtherLines) {
    const test::TempDir folder;
    const Path file = folder / L"FORBIDDEN.TXT";
    test::WriteBytes(file, "# \xE9\nteh -> the\nTeh -> thee\nother\n");
    ASSERT_TRUE(ForbidWord(file, {L"teh", {L"then", L"a b"}}, Latin()));
    EXPECT_EQ(test::ReadBytes(file), "# \xC3\xA9\r\nother\r\nteh -> then, a b\r\n");
    EXPECT_EQ(AllowWord(file, L"Other", Latin()), true);
    EXPECT_EQ(AllowWord(file, L"other", Latin()), false);
    EXPECT_EQ(test::ReadBytes(file), "# \xC3\xA9\r\nteh -> then, a b\r\n");
    test::WriteBytes(file, {"\xFE\xFF\0x\0y\0\n", 8});
    ASSERT_TRUE(ForbidWord(file, {L"teh", {L"the"}}, Latin()));
    EXPECT_EQ(test::ReadBytes(file), "xy\r\nteh -> the\r\n");
    const Path fresh = folder / L"new" / L"FORBIDDEN.TXT";
    ASSERT_TRUE(ForbidWord(fresh, {L"x", {}}, Latin())) << "the folder is made";
    EXPECT_EQ(test::ReadBytes(fresh), "x\r\n");
}

TEST(ForbiddenWords, OfAStoreAreReadOnceAndWithTheCustomDictionaries) {
    test::Dictionaries data;
    EXPECT_TRUE(data.store.Forbidden().Empty());
    ASSERT_TRUE(ForbidWord(data.store.ForbiddenPath(), {L"teh", {L"the"}}, Latin()));
    EXPECT_TRUE(data.store.Forbidden().Empty());
    data.store.ReloadCustomDictionaries();
    EXPECT_EQ(Shown(data.store.Forbidden()), L"teh=the|;");
}

}  // namespace
}  // namespace wordhawk
