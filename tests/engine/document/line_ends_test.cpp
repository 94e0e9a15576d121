#include "engine/document/line_ends.h"

#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

TEST(LineEndMemory, KnowsTheKindUsedMost) {
    EXPECT_EQ(LineEndMemory().MostUsed(), LineEnds::CrLf);
    EXPECT_EQ(LineEndMemory(L"a\nb\r\nc\n").MostUsed(), LineEnds::Lf);
    EXPECT_EQ(LineEndMemory(L"a\r\rb\n").MostUsed(), LineEnds::Cr);
    EXPECT_EQ(LineEndMemory(L"a\n\r\n").MostUsed(), LineEnds::CrLf) << "of two the system's own";
}

TEST(LineEndMemory, GivesEachLineItsOwnEnd) {
    struct Case {
        const char* why;
        std::wstring_view before;
        std::wstring_view edited;
        std::wstring_view restored;
    };
    const Case cases[] = {
        {"nothing edited", L"a\nb\r\nc\rd", L"a\rb\rc\rd", L"a\nb\r\nc\rd"},
        {"a line corrected", L"a\nb\r\nc\n", L"a\rxx\rc\r", L"a\nxx\r\nc\n"},
        {"every line corrected", L"a\nb\r\nc\n", L"x\ry\rz\r", L"x\ny\r\nz\n"},
        {"a line removed", L"a\nb\r\nc\nd\r\n", L"a\rc\rd\r", L"a\nc\nd\r\n"},
        {"a line added", L"a\nb\r\nc\n", L"a\rnew\rb\rc\r", L"a\nnew\nb\r\nc\n"},
        {"a line added at the end", L"a\nb\r\nc", L"a\rb\rc\rd", L"a\nb\r\nc\r\nd"},
        {"added here, corrected there", L"a\nb\r\nc\nd\r\ne\nf", L"a\r1\rb\rcc\rd\re\rf",
         L"a\n1\nb\r\ncc\nd\r\ne\nf"},
        {"lines that are all alike", L"\n\r\n\n\r\n", L"\r\r\r\r\r", L"\n\r\n\n\r\n\r\n"},
        {"an empty line between CR and LF", L"a\rb\nc\r\n", L"a\r\rc\r", L"a\r\r\nc\r\n"},
        {"one kind for all", L"a\nb\n", L"a\rb\r\nc\n", L"a\nb\nc\n"},
        {"none to go by", L"", L"a\rb", L"a\r\nb"},
        {"fewer lines", L"a\nb\nc\r\nd", L"a\rb", L"a\nb"},
        {"LF CR is two ends", L"a\n\rb", L"a\r\rb", L"a\n\rb"},
        {"all gone", L"a\nb\r\n", L"", L""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(LineEndMemory(c.before).Restore(c.edited), c.restored) << c.why;
    }
}

TEST(LineEndMemory, ChangesNothingButLineEnds) {
    test::Random random(5);
    const std::vector<std::wstring> pieces = {L"\r", L"\n", L"\r\n", L"a", L"b", L"cc"};
    for (int round = 0; round < 3000; ++round) {
        const std::wstring before = random.Mix(pieces, random.Below(30));
        const LineEndMemory memory(before);
        EXPECT_EQ(memory.Restore(WithLineEnds(before, LineEnds::Cr)), before);
        const std::wstring edited = random.Mix(pieces, random.Below(30));
        EXPECT_EQ(WithLineEnds(memory.Restore(edited), LineEnds::Lf),
                  WithLineEnds(edited, LineEnds::Lf));
    }
}

}  // namespace
}  // namespace wordhawk
