#include "cli/text_blocks.h"

#include "cli/text_position.h"
#include "tests/support/random_text.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::Random;

const AnsiCodePage& Latin() { return AnsiCodePage::Get(1252); }

std::vector<std::wstring> BlocksOf(const Path& file) {
    std::vector<std::wstring> blocks;
    TextBlocks source(std::move(*ByteSource::OpenFile(file)), DocumentKind::ByContent);
    while (true) {
        auto block = source.Next();
        EXPECT_TRUE(block.has_value());
        if (!block || block->Empty()) return blocks;
        blocks.push_back(block->Decode(Latin()));
    }
}

TEST(CompleteUtf8Length, CutsOffWhatIsNotWholeYet) {
    const struct {
        std::string_view bytes;
        std::size_t length;
    } cases[] = {
        {"", 0},
        {"ab", 2},
        {"a\xC3\xA9", 3},
        {"a\xC3", 1},
        {"\xE2\x82", 0},
        {"a\xF0\x9F\x98", 1},
        {"\xF0\x9F\x98\x80", 4},
        {"\x80\x80\x80", 3},
        {"a\x80", 2},
        {"\xFF", 0},
        {"\xC3\xA9\xC3", 2},
    };
    for (const auto& c : cases) EXPECT_EQ(CompleteUtf8Length(c.bytes), c.length) << c.bytes;
}

TEST(TextBlocks, AreTheWholeDocumentCutBehindBlanks) {
    Random random(5);
    const test::TempDir folder;
    const std::vector<std::wstring> pieces = {L"word",   L" ",  L" ",    L"\xE9t\xE9",
                                              L"\x20AC", L"\n", L"\r\n", L"x"};
    constexpr TextEncoding kEncodings[] = {
        TextEncoding::Ansi, TextEncoding::Utf8, TextEncoding::Utf8WithMark,
        TextEncoding::Utf16LittleEndian, TextEncoding::Utf16BigEndian};
    for (int round = 0; round < 20; ++round) {
        const std::size_t ascii_units = random.OneIn(2) ? random.Below(400'000) : 0;
        const std::wstring text = random.Mix({L"word", L" ", L"\n"}, ascii_units / 2) +
                                  random.Mix(pieces, random.Below(250'000));
        std::string bytes = EncodeDocument(text, kEncodings[round % 5], LineEnds::CrLf, Latin());
        if (random.OneIn(3))
            bytes.insert(random.Below(bytes.size() + 1), 1, static_cast<char>(random.Below(256)));
        test::WriteBytes(folder / L"text", bytes);
        const std::vector<std::wstring> blocks = BlocksOf(folder / L"text");
        std::wstring joined;
        for (std::size_t i = 0; i < blocks.size(); ++i) {
            joined += blocks[i];
            if (i + 1 < blocks.size()) {
                EXPECT_TRUE(blocks[i].ends_with(L' ') || blocks[i].ends_with(L'\n') ||
                            blocks[i].ends_with(L'\r'));
            }
        }
        EXPECT_TRUE(joined == DecodeDocument(bytes, Latin()).text) << "round " << round;
    }
}

TEST(TextBlocks, AreTheTextOfRichTextToo) {
    Random random(9);
    const test::TempDir folder;
    std::string rtf = "{\\rtf1\\ansi ";
    while (rtf.size() < 600'000)
        rtf += random.Pick(
            std::vector<std::string>{"word ", "\\par ", "{\\b x}", "\\u322?", "y", "\r\n"});
    rtf += "\\bin400000 " + std::string(400'000, '}') + " end} behind";
    test::WriteBytes(folder / L"text", rtf);
    std::wstring joined;
    for (const std::wstring& block : BlocksOf(folder / L"text")) {
        EXPECT_LT(block.size(), 300'000u);
        joined += block;
    }
    const std::wstring expected = RtfToText(rtf);
    EXPECT_EQ(joined.size(), expected.size());
    EXPECT_TRUE(joined == expected);
}

TEST(TextBlocks, AreCutAnywhereWhenThereIsNoBlank) {
    const test::TempDir folder;
    test::WriteBytes(folder / L"text", std::string(9'000'000, 'x'));
    const std::vector<std::wstring> blocks = BlocksOf(folder / L"text");
    EXPECT_GE(blocks.size(), 2u);
    std::size_t size = 0;
    for (const std::wstring& block : blocks) size += block.size();
    EXPECT_EQ(size, 9'000'000u);
}

TEST(TextPosition, DoesNotDependOnWhereTextIsCut) {
    Random random(6);
    const std::vector<std::wstring> pieces = {L"a",      L"\r",     L"\n",           L"\r\n",
                                              L"\xD83D", L"\xDE00", L"\xD83D\xDE00", L" "};
    for (int round = 0; round < 500; ++round) {
        const std::wstring text = random.Mix(pieces, random.Below(30));
        TextPosition whole;
        whole.Advance(text);
        TextPosition parts;
        const std::size_t cut = random.Below(text.size() + 1);
        parts.Advance(std::wstring_view(text).substr(0, cut));
        parts.Advance(std::wstring_view(text).substr(cut));
        EXPECT_EQ(parts.Line(), whole.Line());
        EXPECT_EQ(parts.Column(), whole.Column());
        // The column counts the characters of the last line.
        const std::size_t line_start = text.find_last_of(L"\r\n");
        const std::size_t from = line_start == std::wstring::npos ? 0 : line_start + 1;
        EXPECT_EQ(whole.Column(), CountCharacters(std::wstring_view(text).substr(from)) + 1);
        TextPosition joined;
        for (const auto& part : {text.substr(0, cut), text.substr(cut)}) {
            TextPosition counted;
            counted.Advance(part);
            joined.AdvanceCounted(part, counted);
        }
        joined.Advance(L"\n\xDE00");
        whole.Advance(L"\n\xDE00");
        EXPECT_EQ(joined.Line(), whole.Line());
        EXPECT_EQ(joined.Column(), whole.Column());
    }
}

}  // namespace
}  // namespace wordhawk
