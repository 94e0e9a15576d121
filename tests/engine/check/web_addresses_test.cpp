#include "engine/check/web_addresses.h"

#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::Random;

/// The definition, step by step: prefix after prefix, found address by found address, each time
/// from the start of the whole text.
std::wstring RemoveStepByStep(std::wstring text) {
    for (const std::wstring prefix :
         {L"http:", L"https:", L"ftp:", L"mailto:", L"file:", L"gopher:", L"nntp:", L"prospero:",
          L"telnet:", L"news:", L"wais:", L"www."}) {
        for (std::size_t at = text.find(prefix); at != std::wstring::npos; at = text.find(prefix)) {
            std::size_t end = at;
            while (end < text.size() && !IsAddressEnd(text[end])) ++end;
            const std::wstring address = text.substr(at, end - at);
            for (std::size_t hit = text.find(address); hit != std::wstring::npos;
                 hit = text.find(address, hit + 1)) {
                text.replace(hit, address.size(), L" ");
            }
        }
    }
    return text;
}

TEST(WebAddresses, AreRemovedUpToTheirEnd) {
    const struct {
        std::wstring text, expected;
        const char* why;
    } cases[] = {
        {L"", L"", "nothing to do"},
        {L"see http://a.b/c, then", L"see  , then", "a comma ends an address"},
        {L"x www.site.org", L"x  ", "the end of the text ends an address"},
        {L"HTTP://A.B and WWW.A.B", L"HTTP://A.B and WWW.A.B", "capitals are no prefix"},
        {L"http://www.a.b", L" ", "removed whole in the first round"},
        {L"www.a www.a.b xwww.a", L"   .b x ", "a known address goes wherever it stands"},
        {L"someone@host", L"someone@host", "no prefix, no address"},
        {L"mailto:a@b.c;d", L" ;d", "a semicolon ends it"},
        {L"www.", L" ", "a bare prefix is an address"},
        {L"ends(http://x)", L"ends( )", "an opening bracket does not end, a closing one does"},
        {L"http:www.x\rwww.y\nz", L" \r \nz", "line ends end addresses"},
        {L"news:a\"news:b|file:c{d", L" \" | {d", "all the end characters"},
        {L"http:ftp:x ftp:y", L"   ", "an address inside another goes with it"},
    };
    for (const auto& c : cases) EXPECT_EQ(RemoveWebAddresses(c.text), c.expected) << c.why;
}

TEST(WebAddresses, OnePassEqualsStepByStep) {
    const std::vector<std::wstring> pieces = {
        L"http:", L"https:", L"ftp:", L"mailto:", L"www.", L"file:",    L"news:",
        L"a",     L"b",      L"ab",   L".",       L" ",    L",",        L"\r\n",
        L"x",     L"w",      L"ww",   L"(",       L")",    L"prospero:"};
    Random random(7);
    for (int round = 0; round < 20'000; ++round) {
        const std::wstring text = random.Mix(pieces, 1 + random.Below(24));
        ASSERT_EQ(RemoveWebAddresses(text), RemoveStepByStep(text)) << "round " << round;
    }
}

/// Addresses that hold, begin and overlap one another in every way, known before or met in one run.
TEST(WebAddresses, RepeatedAndNestedPrefixesEqualStepByStep) {
    const std::vector<std::vector<std::wstring>> kinds = {
        {L"www.", L"www.", L"www.", L"\n"},
        {L"www.", L"www.a", L"\n"},
        {L"www.", L"www.", L"www.", L"www.", L"www.", L"www.", L"www.", L"www.", L"www.a", L"\n"},
        {L"www.a", L"www.b", L"www.c", L"www.d", L"www.e", L"www.", L"\n"},
        {L"www.a", L"www.b", L"http:", L"http:a", L"c", L"ww", L"\n", L" "},
        {L"www.a", L"www.ab", L"www.abc", L"abc", L"\n"},
    };
    Random random(17);
    for (int round = 0; round < 4'000; ++round) {
        const auto& pieces = kinds[static_cast<std::size_t>(round) % kinds.size()];
        const std::wstring text = random.Mix(pieces, 4 + random.Below(round % 40 == 0 ? 400 : 60));
        ASSERT_EQ(RemoveWebAddresses(text), RemoveStepByStep(text)) << "round " << round;
    }
    // Lines cut out of one sequence, so that long ones with few letters come again and overlap.
    for (int round = 0; round < 1'000; ++round) {
        std::vector<std::wstring> marks;
        for (std::size_t i = 0; i < 12; ++i) {
            marks.push_back(std::wstring(L"www.") + static_cast<wchar_t>(L'a' + random.Below(12)));
        }
        std::wstring text;
        for (std::size_t line = random.Below(40); line > 0; --line) {
            const std::size_t from = random.Below(marks.size());
            const std::size_t most = 1 + random.Below(marks.size() - from);
            for (std::size_t i = from; i < from + most; ++i) text += marks[i];
            text += random.OneIn(6) ? L"" : L"\n";
        }
        ASSERT_EQ(RemoveWebAddresses(text), RemoveStepByStep(text)) << "round " << round;
    }
}

/// Each of these took minutes to hours with a time that grew with the square of the size.
TEST(WebAddresses, LongRunsOfManyPrefixesComeToAnEnd) {
    const auto repeated = [](std::wstring_view piece, std::size_t count) {
        std::wstring text;
        while (count-- > 0) text += piece;
        return text;
    };
    const std::wstring line = repeated(L"www.", 50'000);
    std::wstring shrinking;
    for (std::size_t count = 300; count > 0; --count) shrinking += repeated(L"www.", count) + L'\n';
    std::wstring numbered;
    std::wstring joined;
    for (int i = 0; i < 20'000; ++i) {
        const std::wstring address = L"www.n" + std::to_wstring(i);
        numbered += address + L'\n';
        joined += address + L"\x2019";
    }
    const std::wstring texts[] = {
        line + L'\n' + line,
        shrinking + line,
        numbered + joined,
        joined + L'\n' + joined,
        L"www.k\n" + repeated(L"www.kwww.xwww.yy", 20'000),
        repeated(L"http:www.ftp:", 30'000) + L'\n' + repeated(L"ftp:http:", 30'000),
    };
    for (const std::wstring& text : texts) {
        std::wstring blanked = text;
        AddressBlanker().Blank(blanked);
        EXPECT_EQ(blanked.find(L"www."), std::wstring::npos);
        EXPECT_EQ(blanked.find(L":"), std::wstring::npos);
        EXPECT_EQ(blanked.size(), text.size());
    }
}

TEST(WebAddresses, BlocksGiveTheSameAsTheWholeText) {
    const std::vector<std::wstring> pieces = {L"http:a", L"http:", L"www.", L"b",
                                              L"ab",     L" ",     L"\n",   L"www.b"};
    Random random(8);
    for (int round = 0; round < 3'000; ++round) {
        const std::wstring text = random.Mix(pieces, 40);
        std::wstring whole = text;
        AddressBlanker().Blank(whole);
        AddressBlanker blanker;
        std::wstring joined;
        for (std::size_t from = 0; from < text.size();) {
            std::size_t end = text.find_first_of(L" \n", from + random.Below(10));
            end = end == std::wstring::npos ? text.size() : end + 1;
            std::wstring block = text.substr(from, end - from);
            blanker.Blank(block);
            joined += block;
            from = end;
        }
        ASSERT_EQ(joined, whole) << "round " << round;
    }
}

}  // namespace
}  // namespace wordhawk
