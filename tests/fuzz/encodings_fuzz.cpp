#include "engine/document/document_text.h"
#include "tests/fuzz/rounds.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::Random;

std::string RandomBytes(Random& random) {
    static const std::vector<std::string> kPieces = {"\xEF\xBB\xBF",
                                                     "\xFF\xFE",
                                                     "\xFE\xFF",
                                                     "abc",
                                                     "\r\n",
                                                     "\n",
                                                     "\r",
                                                     "\xC3\xA9",
                                                     "\xC3",
                                                     "\xE2\x82\xAC",
                                                     "\xF0\x9F\x98\x80",
                                                     "\xED\xA0\xBD",
                                                     "\xF4\x90\x80\x80",
                                                     "\xC0\x80",
                                                     std::string(1, '\0'),
                                                     "\x80",
                                                     "\xFF"};
    std::string bytes;
    for (std::size_t count = random.Below(16); count > 0; --count) {
        bytes += random.OneIn(5) ? std::string(1, static_cast<char>(random.Below(256)))
                                 : random.Pick(kPieces);
    }
    return bytes;
}

TEST(EncodingsFuzz, WhatIsSavedIsReadBackAsTheSame) {
    constexpr int kPages[] = {874, 1250, 1252, 1258};
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        Random random(test::Seed() + round);
        const AnsiCodePage& page = AnsiCodePage::Get(kPages[random.Below(4)]);
        const std::string bytes = RandomBytes(random);
        const test::Input input(round, bytes);
        ASSERT_EQ(page.Encode(page.Decode(bytes)), bytes) << "a page loses no byte";
        ASSERT_TRUE(IsUtf8(ToUtf8(FromUtf8(bytes))));
        if (IsUtf8(bytes)) {
            ASSERT_EQ(ToUtf8(FromUtf8(bytes)), bytes);
        }

        const DocumentText document = DecodeDocument(bytes, page);
        ASSERT_LE(document.text.size(), bytes.size());
        const std::string saved =
            EncodeDocument(document.text, document.encoding, document.line_ends, page);
        const DocumentText again = DecodeDocument(saved, page);
        ASSERT_EQ(EncodeDocument(again.text, again.encoding, again.line_ends, page), saved);
    }
}

}  // namespace
}  // namespace wordhawk
