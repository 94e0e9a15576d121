#include "engine/document/rtf_rewrite.h"

#include "engine/document/rtf_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using namespace std::string_literals;

constexpr std::string_view kHead = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0";
constexpr std::string_view kArial = "{\\fonttbl{\\f0\\fnil Arial;}}";

struct Case {
    const char* why;
    std::string rtf;
    /// What stands behind the tables, up to the closing brace.
    std::string body;
    bool dropped = false;
};

void Expect(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        const RewrittenRtf result = RewriteRtf("{\\rtf1" + c.rtf + "}", L"Arial");
        const std::size_t body = result.rtf.find('\n');
        ASSERT_NE(body, std::string::npos);
        EXPECT_EQ(result.rtf.substr(body + 1), c.body + "}") << c.why;
        EXPECT_EQ(result.dropped, c.dropped) << c.why;
    }
}

TEST(RtfRewrite, FormatsAreWrittenAsChanges) {
    const std::string start = "\\pard \\plain\\f0\\fs24 ";
    Expect({
        {"plain text", " a", start + "a"},
        {"bold in a group, plain behind it", " a{\\b b}c", start + "a\\b b\\b0 c"},
        {"nothing that is the same", "\\b\\b1\\b0 a{\\i}b", start + "ab"},
        {"\\plain ends all", "\\b\\ul\\fs30 a\\plain b",
         "\\pard \\plain\\f0\\fs30\\b\\ul a\\fs24\\b0\\ulnone b"},
        {"one kind of underline for another", "\\uldb a\\ulw b\\ul0 c",
         start.substr(0, start.size() - 1) + "\\uldb a\\ulw b\\ulnone c"},
        {"a paragraph has the format of its end", "\\qc a\\par\\pard b",
         "\\pard\\qc \\plain\\f0\\fs24 a\\par\n\\pard b"},
        {"tabs in order alone", "\\tqr\\tx100\\tx50\\tldot\\tx300 a",
         "\\pard\\tqr\\tx100\\tldot\\tx300 \\plain\\f0\\fs24 a"},
        {"another font of the same number", " a{\\fonttbl{\\f0\\fcharset2 Wing;}}\\'e9",
         start + "a\\f1 \\'e9"},
        {"numbers out of range", "\\fs99999\\li-99999999 a",
         "\\pard\\li-31680 \\plain\\f0\\fs3276 a"},
        {"numbers beyond 31 bits are no numbers", "\\fs4294967320\\li99999999999999999999 a",
         start + "a"},
        {"hidden text stays hidden", " a{\\v b}", start + "a\\v b"},
    });
}

TEST(RtfRewrite, FontsAndColoursAreThoseInUse) {
    const RewrittenRtf result = RewriteRtf(
        "{\\rtf1\\deff2{\\fonttbl{\\f1\\fswiss Unused;}{\\f2\\froman Times;}"
        "{\\f7\\fmodern\\fcharset238 Kod{\\*\\falt x};}}"
        "{\\colortbl;\\red1\\green2\\blue3;\\red9\\green9\\blue999;}"
        "a\\f7\\cf2 \\'b3\\highlight1 c\\cf0\\highlight7 d}",
        L"Arial");
    EXPECT_EQ(result.rtf,
              std::string(kHead) +
                  "{\\fonttbl{\\f0\\froman Times;}{\\f1\\fmodern\\fcharset238 Kod;}}"
                  "{\\colortbl;\\red9\\green9\\blue255;\\red1\\green2\\blue3;}\n"
                  "\\pard \\plain\\f0\\fs24 a\\f1\\cf1 \\u322?\\highlight2 c\\cf0\\highlight0 d}");
    EXPECT_FALSE(result.dropped);
    EXPECT_EQ(
        RewriteRtf("{\\rtf1 a}", L"Arial").rtf,
        std::string(kHead) + std::string(kArial) + "{\\colortbl;}\n\\pard \\plain\\f0\\fs24 a}");
}

TEST(RtfRewrite, TextIsWrittenInOneWay) {
    const std::string start = "\\pard \\plain\\f0\\fs24 ";
    Expect({
        {"bytes and Unicode", "\\ansicpg1251 \\'ef\\u322?\\u-10179?\\u-8704?\\u128512?",
         start + "\\u1087?\\u322?\\u-10179?\\u-8704?\\u-10179?\\u-8704?"},
        {"escapes and special characters", " \\{\\}\\\\\\~\\_\\-\\tab\\line\\emdash\\page x",
         start + "\\{\\}\\\\\\u160?\\_\\-\\tab \\line \\u8212?\\par\nx"},
        {"control characters and stand-ins for objects", " a\x01\\u65532?\\'07\\u-7?b",
         start + "ab"},
        {"several bytes a character are left to the reader",
         "{\\fonttbl{\\f0\\fcharset128 Gothic;}}\\f0 \\'82\\'a0{", start + "\\'82\\'a0"},
        {"of two forms the Unicode one", "{\\upr{Kr\\'f3l}{\\*\\ud{Kr\\u243?l}}}",
         start + "Kr\\u243?l"},
    });
}

TEST(RtfRewrite, WhatAPersonWouldMissIsTold) {
    const std::string start = "\\pard \\plain\\f0\\fs24 ";
    Expect({
        {"tables of the head are not missed",
         "{\\stylesheet{\\s0 Normal;}}{\\info{\\title x}}{\\*\\generator y;}\\headery720 a",
         start + "a"},
        {"picture", " a{\\pict\\wmetafile8 0102}b", start + "ab", true},
        {"object", " a{\\object\\objemb{\\*\\objdata 01}{\\result x}}b", start + "ab", true},
        {"picture in a form that may be passed over", "{\\*\\shppict{\\pict 01}}a", start + "a",
         true},
        {"field", "{\\field{\\*\\fldinst PAGE}{\\fldrslt 7}}", start + "7", true},
        {"table", "\\trowd a\\cell b\\cell\\row", start + "a\\tab b\\tab \\par\n", true},
        {"page header", "{\\header top}a", start + "a", true},
        {"note", " a{\\footnote n}", start + "a", true},
        {"deleted text", " a{\\deleted b\\par}c", start + "ac", true},
        {"drawing", "{\\shp{\\*\\shpinst{\\shptxt x}}}a", start + "a", true},
        {"raw data", " a\\bin3 }}}b", start + "ab", true},
        {"an object behind a count that wraps", " a\\bin4294967297 x{\\object b}", start + "a",
         true},
        {"numbers of a list", "{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody\\pnstart3\\pndec{\\pntxta.}}a",
         start + "1.\\tab a", true},
        {"bullets", "{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt{\\pntxtb\\'b7}}a",
         start + "\\u183?\\tab a", true},
        {"a list without marks", " a\\par{\\*\\pn\\pnindent9}b", start + "a\\par\nb", true},
        {"group that turns into a picture", " a{{\\b x}\\pict 0102}y", start + "a\\b x\\b0 y",
         true},
    });
}

TEST(RtfRewrite, BearsNestingWithoutEnd) {
    const std::string deep = RewriteRtf("{\\rtf1\\b a" + std::string(200'000, '{') + "b", L"A").rtf;
    EXPECT_EQ(RtfToText(deep), L"ab");
    const RewrittenRtf closed = RewriteRtf(
        "{\\rtf1 a" + std::string(40, '{') + "\\b b" + std::string(40, '}') + "c}", L"Arial");
    EXPECT_EQ(closed.rtf, std::string(kHead) + std::string(kArial) +
                              "{\\colortbl;}\n\\pard \\plain\\f0\\fs24 a\\b b\\b0 c}");
}

TEST(RtfRewrite, ReadsWhatItCanOfBrokenInput) {
    for (const std::string& rtf :
         {""s, "{"s, "}"s, "{\\rtf1"s, "{\\rtf1 \\"s, "{\\rtf1\\'4"s, "{\\rtf1{\\fonttbl;"s}) {
        const std::string rewritten = RewriteRtf(rtf, L"Arial").rtf;
        EXPECT_EQ(rewritten, RewriteRtf(rewritten, L"Arial").rtf) << rtf;
        EXPECT_EQ(RtfToText(rewritten), L"") << rtf;
    }
}

}  // namespace
}  // namespace wordhawk
