#include "ui/dialogs/progress_window.h"

#include "lang/built_in_texts.h"

#include <gtest/gtest.h>

#include <commctrl.h>

namespace wordhawk::test {
namespace {

class ProgressWindowTest : public testing::Test {
  protected:
    ProgressWindowTest() {
        owner_ = CreateWindowExW(0, L"STATIC", L"owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                 400, 300, nullptr, nullptr, nullptr, nullptr);
    }
    ~ProgressWindowTest() override { DestroyWindow(owner_); }

    /// As a loop that runs for a while.
    static bool YieldFor(ProgressWindow& progress, unsigned milliseconds) {
        const ULONGLONG end = GetTickCount64() + milliseconds;
        bool cancelled = false;
        while (GetTickCount64() < end && !cancelled) cancelled = progress.YieldAndAskCancel();
        return cancelled;
    }
    static std::wstring TextOf(HWND window, int id) {
        wchar_t text[200]{};
        GetDlgItemTextW(window, id, text, 200);
        return text;
    }

    ProgramState state_;
    Theme theme_;
    HWND owner_ = nullptr;
};

TEST_F(ProgressWindowTest, ShowsCaptionAndPositionOverItsDisabledOwner) {
    ProgressWindow progress(state_, theme_, owner_, ProgressWindow::Appear::AtOnce);
    progress.Show(L"Please Wait");
    ASSERT_NE(progress.Handle(), nullptr);
    EXPECT_TRUE(IsWindowVisible(progress.Handle()));
    EXPECT_FALSE(IsWindowEnabled(owner_));
    progress.SetRange(200);
    progress.SetPosition(50);
    progress.SetCaption(L"word 50 & more");
    EXPECT_FALSE(YieldFor(progress, 60));
    EXPECT_EQ(TextOf(progress.Handle(), 101), L"word 50 & more");
    EXPECT_EQ(SendDlgItemMessageW(progress.Handle(), 102, PBM_GETPOS, 0, 0), 250);
    progress.Hide();
    EXPECT_EQ(progress.Handle(), nullptr);
    EXPECT_TRUE(IsWindowEnabled(owner_));
}

TEST_F(ProgressWindowTest, CancelAndCloseAreToldToTheOperation) {
    for (const auto& [message, wparam] :
         {std::pair{UINT{WM_COMMAND}, WPARAM{IDCANCEL}}, {UINT{WM_CLOSE}, 0}}) {
        ProgressWindow progress(state_, theme_, owner_, ProgressWindow::Appear::AtOnce);
        progress.Show(L"Please Wait");
        PostMessageW(progress.Handle(), message, wparam, 0);
        EXPECT_TRUE(YieldFor(progress, 2000));
        EXPECT_TRUE(IsWindowVisible(progress.Handle())) << "the operation ends it";
    }
}

TEST_F(ProgressWindowTest, ShortOperationShowsNoWindowButBlocksTheOwner) {
    ProgressWindow progress(state_, theme_, owner_, ProgressWindow::Appear::WhenItTakesLong);
    progress.Show(L"Please Wait");
    EXPECT_FALSE(YieldFor(progress, 60));
    EXPECT_EQ(progress.Handle(), nullptr);
    EXPECT_FALSE(IsWindowEnabled(owner_));
    EXPECT_FALSE(YieldFor(progress, 500));
    EXPECT_NE(progress.Handle(), nullptr);
}

TEST_F(ProgressWindowTest, EndOfTheProgramCancelsAndIsPassedOn) {
    ProgressWindow progress(state_, theme_, owner_, ProgressWindow::Appear::AtOnce);
    progress.Show(L"Please Wait");
    PostQuitMessage(3);
    EXPECT_TRUE(YieldFor(progress, 2000));
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 3u);
}

TEST_F(ProgressWindowTest, OwnerDisabledBeforeStaysDisabled) {
    EnableWindow(owner_, FALSE);
    {
        ProgressWindow progress(state_, theme_, owner_, ProgressWindow::Appear::AtOnce);
        progress.Show(L"Please Wait");
    }
    EXPECT_FALSE(IsWindowEnabled(owner_));
}

}  // namespace
}  // namespace wordhawk::test
