#include "engine/document/text_exchange.h"

#include "engine/document/rtf_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

TEST(TextExchange, RichTextTravelsAsATextWithoutLosingACharacter) {
    const std::wstring text = L"{\\rtf1\\ansi caf\u00E9 \u4E2D \xD83D\xDE00 \\'e9}";
    const std::string bytes = RtfBytesOf(text);
    for (const char c : bytes) EXPECT_LT(static_cast<unsigned char>(c), 0x80);
    EXPECT_EQ(RtfToText(bytes), L"caf\u00E9 \u4E2D \xD83D\xDE00 \u00E9");
    EXPECT_EQ(TextOfRtfBytes("{\\rtf1 caf\xE9}"), L"{\\rtf1 caf\\'e9}");
}

}  // namespace
}  // namespace wordhawk
