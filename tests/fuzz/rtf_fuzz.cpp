#include "engine/document/rtf_lexer.h"
#include "engine/document/rtf_rewrite.h"
#include "engine/document/rtf_text.h"
#include "platform/text.h"
#include "tests/fuzz/rounds.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>
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

/// A document with a few changes that break it.
std::string BrokenDocument(Random& random) {
    static const std::vector<std::string> kPieces = {"{",
                                                     "}",
                                                     "\\",
                                                     "\\'",
                                                     "\\u",
                                                     "\\bin",
                                                     "\\bin99 ",
                                                     "\\bin4294967297 x",
                                                     "{\\object{\\*\\objdata 0105}}",
                                                     "{\\pict\\wmetafile8 0100}",
                                                     "\\uc9 ",
                                                     "\\*",
                                                     "\\upr",
                                                     "{\\*\\ud",
                                                     "\\fonttbl",
                                                     "\\fcharset238",
                                                     "\\fs99999999999 ",
                                                     "-",
                                                     "2147483648",
                                                     "\xFF",
                                                     std::string(1, '\0'),
                                                     std::string(50, '{'),
                                                     "\\footnote ",
                                                     "\\ansicpg0"};
    std::string rtf = MakeDocument(random).rtf;
    for (std::size_t changes = 1 + random.Below(6); changes > 0; --changes) {
        const std::size_t at = random.Below(rtf.size() + 1);
        switch (random.Below(4)) {
            case 0: rtf.insert(at, random.Pick(kPieces)); break;
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
        const std::string rtf = BrokenDocument(random);
        // Every unit of text takes a byte of the document at least.
        ASSERT_LE(RtfToText(rtf).size(), rtf.size()) << rtf;
    }
}

std::size_t DeepestGroup(std::string_view rtf) {
    std::size_t depth = 0;
    std::size_t deepest = 0;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == '\\') {
            ++i;
        } else if (rtf[i] == '{') {
            deepest = std::max(deepest, ++depth);
        } else if (rtf[i] == '}') {
            --depth;
        }
    }
    return deepest;
}

TEST(RtfFuzz, WhatIsWrittenAnewHoldsNothingThatWasNotLetThrough) {
    Random random(test::Seed() + 3);
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        const std::string rtf = BrokenDocument(random);
        const std::string anew = RewriteRtf(rtf, L"Arial").rtf;
        ASSERT_LE(DeepestGroup(anew), 3u) << rtf;
        for (const char* word : {"\\bin", "\\object", "\\objdata", "\\pict", "\\field", "\\*"})
            ASSERT_EQ(anew.find(word), std::string::npos) << rtf << "\n" << anew;
        ASSERT_LE(anew.size(), 1000 + 60 * rtf.size()) << rtf;
    }
}

}  // namespace
}  // namespace wordhawk
