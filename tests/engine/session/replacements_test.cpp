#include "engine/session/replacements.h"

#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using Texts = std::vector<std::wstring>;
using test::ReadBytes;
using test::WriteBytes;

class RecentChangesTest : public testing::Test {
  protected:
    test::TempDir folder_;
    Path file_ = folder_ / L"Wordhawk.ini";
    RecentChanges recent_;
};

TEST_F(RecentChangesTest, TheNewestComesFirstAndEachOnce) {
    for (const wchar_t* text : {L"one", L"two", L"one", L"", L"TWO"})
        recent_.RememberReplacement(text);
    EXPECT_EQ(recent_.Items(), (Texts{L"TWO", L"one"}));
}

TEST_F(RecentChangesTest, TheNinthDropsTheOldest) {
    for (wchar_t c = L'1'; c <= L'9'; ++c) recent_.RememberReplacement(std::wstring(2, c));
    ASSERT_EQ(recent_.Items().size(), 8u);
    EXPECT_EQ(recent_.Items().front(), L"99");
    EXPECT_EQ(recent_.Items().back(), L"22");
    recent_.RememberReplacement(recent_.Items().front());
    EXPECT_EQ(recent_.Items().size(), 8u);
}

TEST_F(RecentChangesTest, AnEntryOfTheListItselfCanBeRemembered) {
    for (const wchar_t* text : {L"one", L"two", L"three"}) recent_.RememberReplacement(text);
    recent_.RememberReplacement(recent_.Items().back());
    EXPECT_EQ(recent_.Items(), (Texts{L"one", L"three", L"two"}));
}

TEST_F(RecentChangesTest, SurvivesBetweenRunsInItsOrder) {
    for (const wchar_t* text : {L"x=1", L"a=b=c", L"two words"}) recent_.RememberReplacement(text);
    EXPECT_TRUE(recent_.SaveRecentChanges(file_));
    RecentChanges next;
    next.LoadRecentChanges(file_);
    EXPECT_EQ(next.Items(), recent_.Items());
}

TEST_F(RecentChangesTest, LoadsWhatTheSectionHolds) {
    struct Case {
        const char* file;
        Texts expected;
        const char* why;
    };
    const Case cases[] = {
        {"", {}, "no section"},
        {"[Recentchanges]\r\n[Settings]\r\nSortBy=1\r\n", {}, "an empty section"},
        {"[Recentchanges]\r\n0=the\r\n1=and\r\n", {L"the", L"and"}, "stored order"},
        {"[Recentchanges]\r\n5=five\r\n0=zero\r\n",
         {L"five", L"zero"},
         "file order, not key order"},
        {"[Recentchanges]\r\n0=a\r\n1=b\r\n2=c\r\n3=d\r\n4=e\r\n5=f\r\n6=g\r\n7=h\r\n8=i\r\n",
         {L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h"},
         "no more than eight"},
    };
    for (const Case& c : cases) {
        WriteBytes(file_, c.file);
        RecentChanges recent;
        recent.LoadRecentChanges(file_);
        EXPECT_EQ(recent.Items(), c.expected) << c.why;
    }
}

TEST_F(RecentChangesTest, SavingLeavesTheRestOfTheFile) {
    WriteBytes(file_, "[Settings]\r\nSortBy=1\r\n[Recentchanges]\r\n0=old\r\n1=older\r\n");
    recent_.RememberReplacement(L"new");
    EXPECT_TRUE(recent_.SaveRecentChanges(file_));
    const std::string bytes = ReadBytes(file_);
    EXPECT_NE(bytes.find("SortBy=1"), std::string::npos);
    EXPECT_NE(bytes.find("0=new"), std::string::npos);
    EXPECT_NE(bytes.find("1=older"), std::string::npos) << "keys beyond the list stay";
}

}  // namespace
}  // namespace wordhawk
