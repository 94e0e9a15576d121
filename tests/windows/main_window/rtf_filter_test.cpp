#include "ui/main_window/rtf_filter.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace wordhawk::test {
namespace {

TEST(RtfFilter, DropsPicturesAndObjectsAndNothingElse) {
    struct Case {
        const char* reason;
        std::string rtf;
        std::string kept;
    };
    const Case cases[] = {
        {"no object", "{\\rtf1 a \\b b\\b0\\par}", "{\\rtf1 a \\b b\\b0\\par}"},
        {"picture", "{\\rtf1 a{\\pict\\wmetafile8 0102}b}", "{\\rtf1 ab}"},
        {"object with its result", "{\\rtf1 a{\\object\\objemb{\\*\\objdata 01}{\\result x}}b}",
         "{\\rtf1 ab}"},
        {"ignorable destination", "{\\rtf1 {\\*\\shppict{\\pict 01}}{\\nonshppict{\\pict 02}}a}",
         "{\\rtf1 a}"},
        {"line break before the word", "{\\rtf1 a{\r\n\\pict 01}b}", "{\\rtf1 ab}"},
        {"raw bytes that look like braces", std::string("{\\rtf1 a{\\pict\\bin4 }}{{}b}"),
         "{\\rtf1 ab}"},
        {"escaped braces", "{\\rtf1 \\{pict\\} a}", "{\\rtf1 \\{pict\\} a}"},
        {"word that only begins alike", "{\\rtf1{\\picture a}}", "{\\rtf1{\\picture a}}"},
        {"group that turns into a picture", "{\\rtf1{{\\b x}\\pict 0102}y}", "{\\rtf1{{\\b x}}y}"},
        {"halves of a word around a picture", "{\\rtf1\\pi{\\pict 01}ct}", "{\\rtf1\\pi ct}"},
        {"never closed", "{\\rtf1 a{\\pict 0102", "{\\rtf1 a"},
        {"ends in an escape", "{\\rtf1 a\\", "{\\rtf1 a\\"},
        {"count beyond the end", "{\\rtf1{\\pict\\bin999999999999999999999 x", "{\\rtf1 "},
        {"empty", "", ""},
    };
    for (const Case& row : cases) EXPECT_EQ(RtfWithoutObjects(row.rtf), row.kept) << row.reason;
}

TEST(RtfFilter, BrokenInputNeitherHangsNorGrows) {
    std::mt19937 random(7);
    const std::string pieces[] = {"{",     "}",  "\\",      "\\pict",        "{\\pict ",
                                  "\\pi",  "ct", "\\bin3 ", "{\\*\\objdata", "a",
                                  "\\'e9", " ",  "\n"};
    for (int round = 0; round < 2000; ++round) {
        std::string rtf;
        for (int i = 0; i < 40; ++i) rtf += pieces[random() % std::size(pieces)];
        const std::string kept = RtfWithoutObjects(rtf);
        EXPECT_LE(kept.size(), 2 * rtf.size());
        EXPECT_EQ(RtfWithoutObjects(kept), kept) << "something was left, or came about, in " << rtf;
    }
}

TEST(RtfFilter, ColourOfTheScreenDoesNotGoIntoTheFile) {
    EXPECT_EQ(RtfWithAutomaticColour("{\\rtf1{\\colortbl;\\red1\\green2\\blue3;}\\cf1 a}", 1, 2, 3),
              "{\\rtf1{\\colortbl;;}\\cf1 a}");
    EXPECT_EQ(RtfWithAutomaticColour("{\\rtf1{\\colortbl;}\\red1\\green2\\blue3;}", 1, 2, 3),
              "{\\rtf1{\\colortbl;}\\red1\\green2\\blue3;}");
}

}  // namespace
}  // namespace wordhawk::test
