#include "dict/phonetic_key.h"

#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

constexpr int kPages[] = {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};

TEST(PhoneticKey, FollowsTheSoundClasses) {
    struct Case {
        int page;
        std::wstring_view word;
        std::int32_t key;
        const char* reason;
    };
    const Case cases[] = {
        {1252, L"", 0, "no word, no key"},
        {1252, L"hello", 72400, "the second l sounds as the first"},
        {1252, L"HELLO", 72400, "case does not count"},
        {1252, L"a", 65000, "filled up to five digits"},
        {1252, L"hc", 72000, "c is 2, as the last digit of the code of H"},
        {1252, L"hot", 72300, "a vowel does not count"},
        {1252, L"robert", 82163, "three classes are kept"},
        {1252, L"tymczak", 84520, "the vowel between two equal classes changes nothing"},
        {1252, L"pfister", 80123, "cut at five digits"},
        {1252, L"isn't", 73253, "the apostrophe is silent"},
        {1252, L"x-ray", 88260, "the hyphen sounds as a G"},
        {1252, L"a b", 65310, "the blank sounds as a T"},
        {1252, L"a1", 65200, "a digit takes the class of a letter as well"},
        {1252, L"a\tb", 65100, "codes below 13 are silent"},
        {1252, L"\tb", 91000, "a code of one digit"},
        {1252, L"'tis", 39320, "a first character that is no letter"},
        {1252, L"\u00E9t\u00E9", 20130, "raised within the page: 201, three digits long"},
        {1252, L"\u00E0", 19200, "raised within the page"},
        {1252, L"\u65E5a", 63000, "a character outside the page counts as ?"},
        {1251, L"\u043F\u0440\u0438\u0432\u0435\u0442", 20700, "codes above 90 are silent"},
        {1252, L"\u0131b", 63100, "dotless i is not raised, and outside the page"},
        {1254, L"\u0131b", 25310, "dotless i is not raised: its own code, 253"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(GetPhoneticKey(c.word, AnsiCodePage::Get(c.page)), c.key) << c.reason;
    }
}

TEST(PhoneticKey, IsTheSameForBytesAndCharacters) {
    test::Random random(11);
    for (const int number : kPages) {
        const AnsiCodePage& page = AnsiCodePage::Get(number);
        for (int round = 0; round < 3000; ++round) {
            std::string bytes(random.Below(9), '\0');
            const std::size_t lowest = random.OneIn(3) ? 0 : 'a';
            for (char& c : bytes) c = static_cast<char>(lowest + random.Below(256 - lowest));
            ASSERT_EQ(GetPhoneticKeyOfBytes(bytes, page), GetPhoneticKey(page.Decode(bytes), page))
                << number << " " << testing::PrintToString(bytes);
        }
    }
}

TEST(DictionaryFileName, ComesFromTheFirstTwoCharacters) {
    struct Case {
        int page;
        std::wstring_view word;
        std::wstring_view file;
        const char* reason;
    };
    const Case cases[] = {
        {1252, L"hello", L"he_.dic", "two letters"},
        {1252, L"a", L"aa_.dic", "one letter stands for two"},
        {1252, L"i", L"ii_.dic", "one letter stands for two"},
        {1252, L"x-ray", L"x_.dic", "the second is no letter"},
        {1252, L"3d", L"_noncase_.dic", "a digit"},
        {1252, L"3", L"_noncase_.dic", "a digit alone"},
        {1252, L"'tis", L"_noncase_.dic", "an apostrophe"},
        {1252, L"\u00D7a", L"_noncase_.dic", "multiplication sign"},
        {1252, L"\u00F7a", L"_noncase_.dic", "division sign"},
        {1252, L"a\u00F7", L"a_.dic", "the division sign is no letter"},
        {1252, L"\u00E9t\u00E9", L"\u00E9t_.dic", "letters with accents"},
        {1252, L"\u00FFa", L"\u00FFa_.dic", "the last code"},
        {1252, L"\u0153uvre", L"_noncase_.dic", "156 is not among the letters"},
        {1252, L"\u017Eena", L"_noncase_.dic", "158 is not among the letters"},
        {1252, L"\u0178", L"\u0178\u0178_.dic", "159 is"},
        {1252, L"\u65E5\u672C", L"_dbcs_.dic", "outside the single bytes"},
        {1252, L"\xD83D\xDE00", L"_dbcs_.dic", "half a pair is outside too"},
        {1252, L"a\u65E5", L"a_.dic", "the second is outside, so no letter"},
        {1251, L"\u043F\u0440\u0438", L"\u043F\u0440_.dic", "named by the character, not the byte"},
        {1252, L"\u043F\u0440\u0438", L"_dbcs_.dic", "not in this page"},
        {1251, L"\u00E9t", L"_noncase_.dic", "not in the page, but below 256: a question mark"},
        {1252, L"", L"_noncase_.dic", "no word"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(GetDictionaryFileName(c.word, AnsiCodePage::Get(c.page)), c.file) << c.reason;
    }
}

}  // namespace
}  // namespace wordhawk
