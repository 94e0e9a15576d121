#include "engine/document/rtf_text.h"

#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using namespace std::string_literals;

struct Case {
    std::string rtf;
    std::wstring text;
    const char* why;
};

void Expect(const std::vector<Case>& cases) {
    for (const Case& c : cases) EXPECT_EQ(RtfToText(c.rtf), c.text) << c.why << "\n" << c.rtf;
}

TEST(RtfText, IsKnownByItsBeginning) {
    EXPECT_TRUE(LooksLikeRtf("{\\rtf1\\ansi x}"));
    EXPECT_FALSE(LooksLikeRtf("{\\rt"));
    EXPECT_FALSE(LooksLikeRtf(" {\\rtf1 x}"));
    EXPECT_FALSE(LooksLikeRtf(""));
}

TEST(RtfText, KeepsWhatIsShown) {
    Expect({
        {"{\\rtf1 Hello}", L"Hello", "the blank behind a control word belongs to it"},
        {"{\\rtf1  Hello}", L" Hello", "a second blank is text"},
        {"{\\rtf1\\b bold\\b0 er}", L"bolder", "formatting cuts no word"},
        {"{\\rtf1 on\r\ne line}", L"one line", "line ends of the file are no text"},
        {"{\\rtf1 a\\par b\\line c\\page d}", L"a\nb\nc\nd", "paragraphs and lines"},
        {"{\\rtf1 a\\\nb\\\r c}", L"a\nb\n c", "a backslash before a line end is a paragraph"},
        {"{\\rtf1 a\\tab b\\cell c\\row d}", L"a\tb\tc\nd", "cells keep words apart"},
        {"{\\rtf1 \\{x\\}\\\\}", L"{x}\\", "escaped characters"},
        {"{\\rtf1 isn\\rquote t \\ldblquote x\\rdblquote\\emdash y}",
         L"isn\x2019t \x201Cx\x201D\x2014y", "typographic characters"},
        {"{\\rtf1 a\\~b co\\-op well\\_known}",
         L"a\xA0"
         L"b coop well-known",
         "special blanks and hyphens"},
        {"{\\rtf1{\\field{\\*\\fldinst HYPERLINK \"http://x\"}{\\fldrslt link}} text}",
         L"link text", "a field shows its result"},
        {"{\\rtf1 a{\\footnote note}b}", L"a\nnote\nb", "a note is text apart"},
        {"{\\rtf1{\\header top}body}", L"\ntop\nbody", "so is a page header"},
    });
}

TEST(RtfText, LeavesOutWhatIsNotText) {
    Expect({
        {"{\\rtf1{\\fonttbl{\\f0\\fswiss Arial;}}{\\colortbl;\\red0;}{\\stylesheet{\\s0 "
         "Normal;}}x}",
         L"x", "tables of the head"},
        {"{\\rtf1{\\info{\\title Secret}{\\author Me}}x}", L"x", "information about the document"},
        {"{\\rtf1{\\*\\unknown{\\deep text} more}x}", L"x",
         "a destination that may be passed over"},
        {"{\\rtf1{\\pict\\wmetafile8 0100090000}x}", L"x", "a picture"},
        {"{\\rtf1{\\pict\\bin5 }}}\\\\}x}", L"x", "raw bytes may look like anything"},
        {"{\\rtf1 a\\v hidden\\v0 b{\\v also}c\\plain d}", L"abcd", "hidden text"},
        {"{\\rtf1 a{\\deleted gone}b}", L"ab", "deleted text"},
        {"{\\rtf1{\\pntext\\'b7\\tab}item}", L"item", "the bullet of a list item"},
        {"{\\rtf1{\\object{\\*\\objdata 0105}{\\result shown}}}", L"shown",
         "an object shows its result"},
        {"{\\rtf1{\\shp{\\*\\shpinst{\\sp{\\sn a}{\\sv b}}{\\shptxt box}}{\\shprslt box}}x}",
         L"\nbox\nx", "the text of a text box, once"},
        {"{\\rtf1{\\upr{Kr\\'f3l}{\\*\\ud{Kr\\u243?l}}}}", L"Kr\xF3l",
         "of two forms the Unicode one"},
        {"{\\rtf1 x} trailing", L"x", "what follows the document"},
    });
}

TEST(RtfText, DecodesBytesAndUnicode) {
    Expect({
        {"{\\rtf1\\ansi\\ansicpg1252 caf\\'e9 \\'80}", L"caf\xE9 \x20AC", "the document's page"},
        {"{\\rtf1\\ansi\\ansicpg1251 \\'ef\\'f0}", L"\x43F\x440", "another page"},
        {"{\\rtf1\\ansicpg1252 caf\xE9}", L"caf\xE9", "a raw byte beyond ASCII"},
        {"{\\rtf1\\ansicpg1252{\\fonttbl{\\f0\\fcharset0 A;}{\\f1\\fcharset238 B;}}\\f1 \\'b3\\f0 "
         "\\'b3"
         "{\\f1\\plain\\'b3}}",
         L"\x142\xB3\xB3", "a font's character set has its own page"},
        {"{\\rtf1 \\u322?\\u-3?}", L"\x142\xFFFD", "Unicode, negative for the upper half"},
        {"{\\rtf1 \\u8217\\'92s}", L"\x2019s", "the other form may be a byte in hex"},
        {"{\\rtf1\\uc2 \\u322ab c{\\uc0\\u322 d}\\u322ef}",
         L"\x142 c\x142"
         L"d\x142",
         "or several characters"},
        {"{\\rtf1 \\u322{x}}", L"\x142x", "but never reaches into a group"},
        {"{\\rtf1 \\u55357?\\u56832?}", L"\xD83D\xDE00", "a pair in two halves"},
        {"{\\rtf1 \\u128512?}", L"\xD83D\xDE00", "a whole code point"},
        {"{\\rtf1 \\u1114112?x}", L"x", "no code point at all"},
    });
}

TEST(RtfText, ReadsWhatItCanOfBrokenInput) {
    Expect({
        {"", L"", "nothing"},
        {"{", L"", "an open group"},
        {"}", L"", "a group that was never opened"},
        {"{\\rtf1 cut", L"cut", "no end"},
        {"{\\rtf1 cut\\", L"cut", "cut in a control"},
        {"{\\rtf1 a\\'zz b\\'4", L"azz b", "hex digits that are none"},
        {"{\\rtf1 a\\bin99999999999 b", L"a", "more raw bytes than there are"},
        {"{\\rtf1 a\\bin-5 b}", L"ab", "fewer than none"},
        {"{\\rtf1 a\\uc-7\\u322b}",
         L"a\x142"
         L"b",
         "a senseless count"},
        {"{\\rtf1 nul\0x}"s, L"nul\0x"s, "NUL"},
        {"plain text", L"plain text", "no rich text at all"},
    });
}

TEST(RtfText, IsTheSameHoweverTheDocumentIsCut) {
    test::Random random(8);
    const std::vector<std::string> pieces = {
        "{",       "}",        "\\b ",    "\\b0",          "word ",
        "\\u322?", "\\u-4051", "\\'e9",   "\\bin5 {}\\{}", "\\bin300000 ",
        "\r\n",    "\\\\",     "\\*\\x ", "\\pict ",       "\\uc2",
        "\\par",   "\xE9",     "\\",      "{\\v x}",       "\\emdash"};
    for (int round = 0; round < 3'000; ++round) {
        std::string rtf = "{\\rtf1 ";
        for (std::size_t i = random.Below(40); i > 0; --i) rtf += random.Pick(pieces);
        if (random.OneIn(3)) rtf += "\\u" + std::string(random.Below(50), '0') + "65?";
        std::wstring text;
        RtfTextReader reader;
        for (std::size_t at = 0; at < rtf.size();) {
            const std::size_t size = 1 + random.Below(random.OneIn(2) ? 3 : 20);
            reader.Feed(std::string_view(rtf).substr(at, size), text);
            at += size;
        }
        reader.Finish(text);
        ASSERT_EQ(text, RtfToText(rtf)) << rtf;
    }
}

TEST(RtfText, BearsNestingWithoutEnd) {
    const std::size_t depth = 200'000;
    const std::string open(depth, '{');
    EXPECT_EQ(RtfToText("{\\rtf1 " + open + "deep" + std::string(depth, '}') + " out}"),
              L"deep out");
    EXPECT_EQ(RtfToText("{\\rtf1 " + open), L"");
}

}  // namespace
}  // namespace wordhawk
