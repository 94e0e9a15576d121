#include "engine/document/document_text.h"

#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

const AnsiCodePage& Latin() { return AnsiCodePage::Get(1252); }

TEST(DocumentText, FindsTheEncodingAndDecodes) {
    const struct {
        std::string bytes;
        TextEncoding encoding;
        std::wstring text;
        const char* why;
    } cases[] = {
        {"", TextEncoding::Utf8, L"", "an empty file"},
        {"plain", TextEncoding::Utf8, L"plain", "ASCII alone"},
        {"caf\xC3\xA9", TextEncoding::Utf8, L"caf\xE9", "well-formed UTF-8"},
        {"caf\xE9", TextEncoding::Ansi, L"caf\xE9", "not UTF-8"},
        {"\xC3\xA9 caf\xE9", TextEncoding::Ansi, L"\xC3\xA9 caf\xE9",
         "one wrong byte decides for all"},
        {"\x80 \x93quote\x94", TextEncoding::Ansi, L"\x20AC \x201Cquote\x201D",
         "the page's own symbols"},
        {"cut \xE2\x82", TextEncoding::Ansi, L"cut \xE2\x201A",
         "a sequence cut at the end is not UTF-8"},
        {"\xEF\xBB\xBF"
         "caf\xC3\xA9",
         TextEncoding::Utf8WithMark, L"caf\xE9", "the mark is no text"},
        {"\xEF\xBB\xBF"
         "a\xFF",
         TextEncoding::Utf8WithMark, L"a\xFFFD", "the mark outweighs a wrong byte"},
        {"\xFF\xFE"
         "a\0\xE9\0"s,
         TextEncoding::Utf16LittleEndian, L"a\xE9", "UTF-16, low byte first"},
        {"\xFE\xFF\0a\0\xE9"s, TextEncoding::Utf16BigEndian, L"a\xE9", "UTF-16, high byte first"},
        {"\xFF\xFE"
         "a\0b"s,
         TextEncoding::Utf16LittleEndian, L"a\xFFFD", "half a unit at the end"},
        {"\xFF\xFE\x3D\xD8\x00\xDE"s, TextEncoding::Utf16LittleEndian, L"\xD83D\xDE00",
         "a pair stays two units"},
        {"\xF0\x9F\x98\x80", TextEncoding::Utf8, L"\xD83D\xDE00", "and becomes two units"},
        {"nul\0in\0side"s, TextEncoding::Utf8, L"nul\0in\0side"s, "NUL is a character like any"},
    };
    for (const auto& c : cases) {
        const DocumentText document = DecodeDocument(c.bytes, Latin());
        EXPECT_EQ(document.encoding, c.encoding) << c.why;
        EXPECT_EQ(document.text, c.text) << c.why;
    }
}

TEST(DocumentText, UsesTheGivenPageForAnsi) {
    EXPECT_EQ(DecodeDocument("\xB3\xF3\x64\x9F", AnsiCodePage::Get(1250)).text,
              L"\x142\xF3\x64\x17A");
}

TEST(DocumentText, FindsTheLineEndsThatAreUsedMost) {
    const struct {
        std::string_view bytes;
        LineEnds line_ends;
    } cases[] = {
        {"", LineEnds::CrLf},          {"one", LineEnds::CrLf},
        {"a\nb", LineEnds::Lf},        {"a\rb", LineEnds::Cr},
        {"a\r\nb\nc\n", LineEnds::Lf}, {"a\r\nb\r\nc\n", LineEnds::CrLf},
        {"a\r\rb\n", LineEnds::Cr},    {"a\n\r\n", LineEnds::CrLf},
        {"a\n\rb\n", LineEnds::Lf},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(DecodeDocument(c.bytes, Latin()).line_ends, c.line_ends) << c.bytes;
    }
}

TEST(DocumentText, WritesEveryKindOfLineEndAsTheDocumentsOwn) {
    const std::wstring text = L"a\rb\nc\r\nd\n\r\r\n";
    EXPECT_EQ(EncodeDocument(text, TextEncoding::Utf8, LineEnds::Lf, Latin()), "a\nb\nc\nd\n\n\n");
    EXPECT_EQ(EncodeDocument(text, TextEncoding::Utf8, LineEnds::Cr, Latin()), "a\rb\rc\rd\r\r\r");
    EXPECT_EQ(EncodeDocument(text, TextEncoding::Ansi, LineEnds::CrLf, Latin()),
              "a\r\nb\r\nc\r\nd\r\n\r\n\r\n");
}

TEST(DocumentText, LosesNothingWhenThePageIsTooSmall) {
    EXPECT_EQ(EncodeDocument(L"\x20AC\xE9", TextEncoding::Ansi, LineEnds::Lf, Latin()), "\x80\xE9");
    EXPECT_EQ(EncodeDocument(L"\x142\xE9", TextEncoding::Ansi, LineEnds::Lf, Latin()),
              "\xEF\xBB\xBF\xC5\x82\xC3\xA9");
}

TEST(DocumentText, ComesBackAsItWasRead) {
    test::Random random(20240101);
    const std::vector<std::wstring> pieces = {L"word", L" ",  L"\xE9t\xE9", L"\x20AC",
                                              L"\n",   L"\t", L"x"};
    constexpr TextEncoding kEncodings[] = {
        TextEncoding::Ansi, TextEncoding::Utf8, TextEncoding::Utf8WithMark,
        TextEncoding::Utf16LittleEndian, TextEncoding::Utf16BigEndian};
    for (int round = 0; round < 300; ++round) {
        // The é makes ANSI bytes that are no UTF-8, the line end makes its kind known.
        const std::wstring text = random.Mix(pieces, random.Below(40)) + L"\xE9 \n";
        const TextEncoding encoding = kEncodings[random.Below(5)];
        const LineEnds line_ends = static_cast<LineEnds>(random.Below(3));
        const std::string bytes = EncodeDocument(text, encoding, line_ends, Latin());
        const DocumentText again = DecodeDocument(bytes, Latin());
        EXPECT_EQ(again.encoding, encoding);
        EXPECT_EQ(again.line_ends, line_ends);
        EXPECT_EQ(EncodeDocument(again.text, again.encoding, again.line_ends, Latin()), bytes);
    }
}

}  // namespace
}  // namespace wordhawk
