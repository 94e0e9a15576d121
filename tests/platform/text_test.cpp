#include "platform/text.h"

#include <gtest/gtest.h>

#include <random>

namespace wordhawk {
namespace {

constexpr int kPages[] = {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};

struct Utf8Case {
    std::string bytes;
    std::wstring text;
    bool well_formed;
    const char* reason;
};

const Utf8Case kUtf8Cases[] = {
    {"", L"", true, "empty"},
    {std::string("a\0b", 3), std::wstring(L"a\0b", 3), true, "NUL"},
    {"\xC3\xA9\xE4\xB8\x81", L"\x00E9\x4e01", true, "two and three bytes"},
    {"\xF0\x9F\x98\x80", L"\xD83D\xDE00", true, "a pair of units"},
    {"\xEF\xBB\xBF", L"\xFEFF", true, "the mark is a character"},
    {"\x80", L"\xFFFD", false, "lone continuation"},
    {"a\xC3", L"a\xFFFD", false, "cut off"},
    {"\xC0\xAF", L"\xFFFD\xFFFD", false, "overlong slash"},
    {"\xE0\x80\xAF", L"\xFFFD\xFFFD\xFFFD", false, "overlong in three bytes"},
    {"\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD", false, "a surrogate"},
    {"\xF4\x90\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD", false, "beyond the last character"},
    {"\xE4\xB8z", L"\xFFFDz", false, "the next character is not swallowed"},
    {"\xFF\xFE", L"\xFFFD\xFFFD", false, "never in UTF-8"},
};

TEST(Text, FromUtf8) {
    for (const Utf8Case& row : kUtf8Cases) {
        EXPECT_EQ(FromUtf8(row.bytes), row.text) << row.reason;
        EXPECT_EQ(IsUtf8(row.bytes), row.well_formed) << row.reason;
        EXPECT_EQ(ToUtf8(row.text) == row.bytes, row.well_formed) << row.reason;
    }
}

TEST(Text, AnyBytesBecomeTextThatStaysTheSame) {
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes(random() % 12, ' ');
        for (char& byte : bytes)
            byte = static_cast<char>(random() % 4 ? 0x80 + random() % 0x80 : random() % 128);
        const std::wstring text = FromUtf8(bytes);
        EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
        EXPECT_EQ(IsUtf8(bytes), ToUtf8(text) == bytes);
        std::wstring appended = L"x";
        AppendFromUtf8(bytes, appended);
        EXPECT_EQ(appended, L"x" + text);
    }
}

TEST(Text, LoneSurrogates) {
    EXPECT_EQ(ToUtf8(L"a\xD800z"), "a\xEF\xBF\xBDz");
    EXPECT_EQ(ToUtf8(L"\xDE00\xD83D"), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(CountCharacters(L"a\xD83D\xDE00z\xD83D"), 4u);
}

TEST(Text, CaseIsMappedOneToOne) {
    const struct {
        wchar_t lower;
        wchar_t upper;
    } pairs[] = {{L'a', L'A'},           {L'\x00E9', L'\x00C9'}, {L'\x00FF', L'\x0178'},
                 {L'\x0142', L'\x0141'}, {L'\x044F', L'\x042F'}, {L'\x03C9', L'\x03A9'}};
    for (const auto& pair : pairs) {
        EXPECT_EQ(UpperChar(pair.lower), pair.upper);
        EXPECT_EQ(LowerChar(pair.upper), pair.lower);
    }
    // Micro sign, dotless i, long s, f with hook, sharp s, and a surrogate have no upper form.
    for (const wchar_t c :
         {L'\x00B5', L'\x0131', L'\x017F', L'\x0192', L'\x00DF', wchar_t{0xD83D}, L'1'}) {
        EXPECT_EQ(UpperChar(c), c) << int(c);
    }
    EXPECT_EQ(LowerChar(L'\x0130'), L'\x0130') << "capital I with dot has no lower form";
    EXPECT_EQ(Lower(L"\x00C9T\x00C9 1"), L"\x00E9t\x00E9 1");
    EXPECT_EQ(Upper(L"stra\x00DF\x0065"), L"STRA\x00DF\x0045");
    EXPECT_TRUE(EqualIgnoringCase(L"\x00C9t\x00E9", L"\x00E9T\x00C9"));
    EXPECT_FALSE(EqualIgnoringCase(L"ab", L"abc"));
}

TEST(Text, TrimTakesSpacesOnly) {
    EXPECT_EQ(Trim(L"  a b  "), L"a b");
    EXPECT_EQ(Trim(L"\ta\x00A0"), L"\ta\x00A0");
    EXPECT_EQ(Trim(L"   "), L"");
}

TEST(Text, NumbersOrZero) {
    const struct {
        const wchar_t* text;
        std::int32_t number;
    } cases[] = {{L"80", 80},         {L" 7 ", 7},
                 {L"-1", -1},         {L"+5", 5},
                 {L"007", 7},         {L"", 0},
                 {L"x", 0},           {L"1x", 0},
                 {L"1.5", 0},         {L"1 2", 0},
                 {L"-", 0},           {L"--1", 0},
                 {L"\x0661", 0},      {L"2147483647", 2147483647},
                 {L"2147483648", 0},  {L"-2147483648", -2147483647 - 1},
                 {L"-2147483649", 0}, {L"18446744073709551617", 0}};
    for (const auto& row : cases) EXPECT_EQ(NumberOrZero(row.text), row.number) << ToUtf8(row.text);
}

TEST(AnsiCodePages, EveryByteComesBack) {
    for (const int number : kPages) {
        const AnsiCodePage& page = AnsiCodePage::Get(number);
        EXPECT_EQ(page.Number(), number);
        std::string bytes;
        for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
        EXPECT_EQ(page.Encode(page.Decode(bytes)), bytes) << number;
    }
}

TEST(AnsiCodePages, KnownBytes) {
    const struct {
        int page;
        unsigned char byte;
        wchar_t character;
    } cases[] = {{1252, 0x80, 0x20AC}, {1252, 0x81, 0x0081}, {1252, 0x9F, 0x0178},
                 {1252, 0xF8, 0x00F8}, {1250, 0xA3, 0x0141}, {1250, 0x9F, 0x017A},
                 {1251, 0xE0, 0x0430}, {1253, 0xD2, 0x00D2}, {1254, 0xFD, 0x0131},
                 {1255, 0xE0, 0x05D0}, {1257, 0xA1, 0x00A1}, {874, 0xDB, 0x00DB},
                 {874, 0xA1, 0x0E01},  {1258, 0xEC, 0x0301}};
    for (const auto& row : cases) {
        EXPECT_EQ(AnsiCodePage::Get(row.page).ToUnicode(row.byte), row.character)
            << row.page << " " << int(row.byte);
    }
}

TEST(AnsiCodePages, NoBestFit) {
    const AnsiCodePage& page = AnsiCodePage::Get(1252);
    EXPECT_EQ(page.Encode(L"\x0142\x0101\x4e01\xD83D\xDE00\x221E"), "??????");
    EXPECT_EQ(page.ToByteOrNone(L'\x0142'), -1);
    EXPECT_EQ(page.ToByteOrNone(static_cast<wchar_t>(-1)), -1);
    EXPECT_EQ(AnsiCodePage::Get(12345).ToUnicode(0x80), L'\x20AC') << "an unknown page is 1252";
}

TEST(AnsiCodePages, CaseWithinThePage) {
    const AnsiCodePage& western = AnsiCodePage::Get(1252);
    EXPECT_EQ(western.LowerByte(0xC9), 0xE9);
    EXPECT_EQ(western.UpperByte(0xFF), 0x9F);
    EXPECT_EQ(western.UpperByte(0xB5), 0xB5);
    EXPECT_EQ(AnsiCodePage::Get(1251).LowerByte(0xC0), 0xE0);
    EXPECT_EQ(AnsiCodePage::Get(1253).UpperByte(0xFD), 0xBE) << "upsilon with tonos";
    EXPECT_EQ(AnsiCodePage::Get(874).UpperByte(0xA1), 0xA1) << "Thai has no case";
}

}  // namespace
}  // namespace wordhawk
