#include "engine/document/text_exchange.h"

#include "engine/document/rtf_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

TEST(TextExchange, LineEndsAreThoseOfTheOriginal) {
    const struct {
        const wchar_t* original;
        const wchar_t* text;
        const wchar_t* result;
        const char* why;
    } cases[] = {
        {L"", L"a\rb", L"a\r\nb", "none to go by"},
        {L"a\nb", L"x\ry", L"x\ny", "the only kind"},
        {L"a\nb\r\nc\rd", L"w\rx\ry\rz", L"w\nx\r\ny\rz", "each its own"},
        {L"a\nb\nc\r\nd", L"a\rb", L"a\nb", "fewer: the kind used most"},
        {L"a\r\nb\nc", L"a\rb\rc\rd", L"a\r\nb\r\nc\r\nd", "a tie goes to CR LF"},
        {L"a\n\rb", L"a\r\rb", L"a\n\rb", "LF CR is two breaks"},
    };
    for (const auto& c : cases) EXPECT_EQ(WithLineEndsOf(c.original, c.text), c.result) << c.why;
}

TEST(TextExchange, RichTextTravelsAsATextWithoutLosingACharacter) {
    const std::wstring text = L"{\\rtf1\\ansi caf\u00E9 \u4E2D \xD83D\xDE00 \\'e9}";
    const std::string bytes = RtfBytesOf(text);
    for (const char c : bytes) EXPECT_LT(static_cast<unsigned char>(c), 0x80);
    EXPECT_EQ(RtfToText(bytes), L"caf\u00E9 \u4E2D \xD83D\xDE00 \u00E9");
    EXPECT_EQ(TextOfRtfBytes("{\\rtf1 caf\xE9}"), L"{\\rtf1 caf\\'e9}");
}

}  // namespace
}  // namespace wordhawk
