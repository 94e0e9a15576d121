#include "platform/win32/system_clipboard.h"
#include "platform/win32/win.h"

#include <gtest/gtest.h>

namespace wordhawk::test {
namespace {

TEST(SystemClipboardTest, PlainTextComesBackWithTheSystemsLineEnds) {
    SystemClipboard clipboard;
    ASSERT_TRUE(clipboard.SetPlainText(L"one\rtwo\nthree\r\nfour \u00E9\U0001F600"));
    EXPECT_TRUE(clipboard.HasPlainText());
    EXPECT_FALSE(clipboard.HasRichText());
    EXPECT_EQ(clipboard.PlainText(), L"one\r\ntwo\r\nthree\r\nfour \u00E9\U0001F600");
    EXPECT_FALSE(clipboard.RichText());
}

TEST(SystemClipboardTest, RichTextBringsItsPlainForm) {
    SystemClipboard clipboard;
    ASSERT_TRUE(clipboard.SetRichText("{\\rtf1 \\b bold}", L"bold"));
    EXPECT_TRUE(clipboard.HasRichText());
    EXPECT_EQ(clipboard.RichText(), "{\\rtf1 \\b bold}");
    EXPECT_EQ(clipboard.PlainText(), L"bold");
}

TEST(SystemClipboardTest, AnsiTextOfOtherProgramsIsRead) {
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    CloseClipboard();
    const HWND owner =
        CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_TRUE(OpenClipboard(owner));
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 5);
    std::copy_n("text", 5, static_cast<char*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    SetClipboardData(CF_TEXT, memory);
    CloseClipboard();
    SystemClipboard clipboard;
    EXPECT_TRUE(clipboard.HasPlainText());
    EXPECT_EQ(clipboard.PlainText(), L"text");
    DestroyWindow(owner);
}

TEST(SystemClipboardTest, ClipboardInOtherHandsIsAnError) {
    const HWND other =
        CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_TRUE(OpenClipboard(other));
    SystemClipboard clipboard;
    EXPECT_FALSE(clipboard.SetPlainText(L"text"));
    EXPECT_FALSE(clipboard.PlainText());
    CloseClipboard();
    DestroyWindow(other);
}

}  // namespace
}  // namespace wordhawk::test
