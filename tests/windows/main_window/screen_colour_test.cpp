#include "ui/main_window/screen_colour.h"

#include <gtest/gtest.h>

namespace wordhawk::test {
namespace {

TEST(ScreenColour, DoesNotGoIntoTheFile) {
    EXPECT_EQ(RtfWithAutomaticColour("{\\rtf1{\\colortbl;\\red1\\green2\\blue3;}\\cf1 a}", 1, 2, 3),
              "{\\rtf1{\\colortbl;;}\\cf1 a}");
    EXPECT_EQ(RtfWithAutomaticColour("{\\rtf1{\\colortbl;}\\red1\\green2\\blue3;}", 1, 2, 3),
              "{\\rtf1{\\colortbl;}\\red1\\green2\\blue3;}");
}

}  // namespace
}  // namespace wordhawk::test
