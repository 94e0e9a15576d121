#include "engine/document/rtf_lexer.h"
#include "engine/document/rtf_rewrite.h"
#include "engine/document/rtf_text.h"
#include "platform/text.h"
#include "tests/fuzz/rounds.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace wordhawk {
namespace {

using test::Random;

struct Document {
    std::string rtf;
    std::wstring text;
};

/// Appends pieces whose text is known; groups nest up to `depth`.
void AppendPieces(Random& random, Document& document, int depth) {
    for (std::size_t count = random.Below(8); count > 0; --count) {
        const std::wstring word = random.Word(L"abcdefg", 1, 6);
        const std::string ascii(word.begin(), word.end());
        switch (random.Below(12)) {
            case 0:
                document.rtf += "\\par ";
                document.text += L'\n';
                break;
            case 1:
                document.rtf += "\\'e9";
                document.text += L'\xE9';
                break;
            case 2:
                document.rtf += "\\u322?";
                document.text += L'\x142';
                break;
            case 3:
                document.rtf += "\\uc2\\u-10179\\'3f?\\u-8704 ab\\uc1 ";
                document.text += L"\xD83D\xDE00";
                break;
            case 4: document.rtf += "{\\*\\" + ascii + "zz {" + ascii + "}}"; break;
            case 5: document.rtf += "{\\pict\\bin3 }}}}"; break;
            case 6:
                document.rtf += "\\{\\}\\\\";
                document.text += L"{}\\";
                break;
            case 7: document.rtf += "{\\v " + ascii + "}\r\n"; break;
            case 8:
                document.rtf += "\\b0\\fs24\\tab ";
                document.text += L'\t';
                break;
            case 9:
                if (depth > 0) {
                    document.rtf += "{\\i ";
                    AppendPieces(random, document, depth - 1);
                    document.rtf += '}';
                }
                break;
            default:
                document.rtf += ascii;
                document.text += word;
                break;
        }
    }
}

Document MakeDocument(Random& random) {
    Document document{"{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0 Arial;}}\\f0 ", L""};
    AppendPieces(random, document, 4);
    document.rtf += '}';
    return document;
}

TEST(RtfFuzz, GivesExactlyTheTextThatWasPutIn) {
    Random random(test::Seed() + 1);
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        const Document document = MakeDocument(random);
        ASSERT_EQ(RtfToText(document.rtf), document.text) << document.rtf;
    }
}

/// The document with some changes that a writer would not make.
std::string Broken(Random& random) {
    static const std::vector<std::string> pieces = {"{",
                                                    "}",
                                                    "\\",
                                                    "\\'",
                                                    "\\u",
                                                    "\\bin",
                                                    "\\bin99 ",
                                                    "\\bin4294967297 x",
                                                    "\\fs99999999999 ",
                                                    std::string(50, '{'),
                                                    "\\uc9 ",
                                                    "\\*",
                                                    "\\upr",
                                                    "{\\*\\ud",
                                                    "\\fonttbl",
                                                    "\\fcharset238",
                                                    "-",
                                                    "2147483648",
                                                    "\xFF",
                                                    std::string(1, '\0'),
                                                    "\\footnote ",
                                                    "\\ansicpg0",
                                                    "\\object ",
                                                    "{\\colortbl;\\red1\\green2\\blue3;}",
                                                    "\\cf1",
                                                    "\\f9\\plain",
                                                    "\\tx",
                                                    "\\pard\\qc",
                                                    "{\\*\\pn\\pndec{\\pntxta )}}",
                                                    "\\deleted ",
                                                    "\\row\\cell",
                                                    "{\\f7\\fnil\\fcharset128 X;}"};
    std::string rtf = MakeDocument(random).rtf;
    for (std::size_t changes = 1 + random.Below(6); changes > 0; --changes) {
        const std::size_t at = random.Below(rtf.size() + 1);
        switch (random.Below(4)) {
            case 0: rtf.insert(at, random.Pick(pieces)); break;
            case 1: rtf.erase(at, random.Below(20)); break;
            case 2:
                rtf.insert(at, rtf.substr(random.Below(rtf.size() + 1), random.Below(40)));
                break;
            default: rtf.resize(at); break;
        }
    }
    return rtf;
}

TEST(RtfFuzz, BearsBrokenDocuments) {
    Random random(test::Seed() + 2);
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        const std::string rtf = Broken(random);
        // Every unit of text takes a byte of the document at least.
        ASSERT_LE(RtfToText(rtf).size(), rtf.size()) << rtf;
    }
}

TEST(RtfFuzz, RewritingKeepsTheText) {
    Random random(test::Seed() + 3);
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        const Document document = MakeDocument(random);
        ASSERT_EQ(RtfToText(RewriteRtf(document.rtf, L"Arial").rtf), document.text) << document.rtf;
    }
}

/// Whether groups are closed, nest three deep at most and hold nothing but formats and text.
bool IsHarmless(std::string_view rtf) {
    RtfLexer lexer(rtf);
    int depth = 0;
    for (RtfToken token = lexer.Next(); token.kind != RtfToken::Kind::End; token = lexer.Next()) {
        if (token.kind == RtfToken::Kind::Open && ++depth > 3) return false;
        if (token.kind == RtfToken::Kind::Close && --depth < 0) return false;
        for (const char* banned : {"bin", "object", "pict", "field", "objdata", "trowd"}) {
            if (token.kind == RtfToken::Kind::Word && token.text == banned) return false;
        }
        if (token.out_of_range || std::abs(token.number) > 65535) return false;
    }
    return depth == 0;
}

TEST(RtfFuzz, RewritingABrokenDocumentGivesAHarmlessOneThatStaysAsItIs) {
    Random random(test::Seed() + 4);
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        const std::string rtf = Broken(random);
        const std::string rewritten = RewriteRtf(rtf, L"Arial").rtf;
        ASSERT_TRUE(IsHarmless(rewritten)) << rtf << "\n" << rewritten;
        ASSERT_LE(rewritten.size(), 200 + rtf.size() * 40) << rtf;
        const RewrittenRtf again = RewriteRtf(rewritten, L"Arial");
        ASSERT_EQ(again.rtf, rewritten) << rtf;
        ASSERT_FALSE(again.dropped) << rtf;
    }
}

}  // namespace
}  // namespace wordhawk
