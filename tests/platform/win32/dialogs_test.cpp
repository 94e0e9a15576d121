#include "platform/modCDlg.h"
#include "platform/win32/win.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <utility>

namespace wordhawk {
namespace {

/// Answers the dialogs that the making thread shows by pressing one of their buttons, as the user
/// would, until it goes out of scope.
class Presser {
  public:
    explicit Presser(int button)
        : thread_([this, button, dialogs_thread = GetCurrentThreadId()] {
              while (!stop_) {
                  EnumThreadWindows(dialogs_thread, &Presser::Remember,
                                    reinterpret_cast<LPARAM>(this));
                  if (const HWND dialog = std::exchange(dialog_, nullptr)) {
                      wchar_t title[100] = {};
                      // A dialog that is just closing has lost its caption already.
                      if (GetWindowTextW(dialog, title, 100) > 0) title_ = title;
                      PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
                  }
                  Sleep(50);
              }
          }) {}
    ~Presser() { Stop(); }
    /// The caption of the dialog seen last.
    std::wstring Stop() {
        stop_ = true;
        if (thread_.joinable()) thread_.join();
        return title_;
    }

  private:
    static BOOL CALLBACK Remember(HWND window, LPARAM self) {
        wchar_t type[20] = {};
        GetClassNameW(window, type, 20);
        if (IsWindowVisible(window) && std::wstring_view(type) == L"#32770") {
            reinterpret_cast<Presser*>(self)->dialog_ = window;
        }
        return TRUE;
    }

    std::atomic<bool> stop_ = false;
    HWND dialog_ = nullptr;
    std::wstring title_;
    std::thread thread_;
};

class WindowsDialogs : public testing::Test {
  protected:
    void SetUp() override {
        const HWND probe = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPED, 0, 0, 1, 1, nullptr,
                                           nullptr, GetModuleHandleW(nullptr), nullptr);
        if (!probe) GTEST_SKIP() << "no screen here";
        DestroyWindow(probe);
        request_.filter = kFilter;
        request_.title = L"Pick one";
    }
    static constexpr std::wstring_view kFilter{L"Text (*.txt)\0*.txt\0Rich text (*.rtf)\0*.rtf",
                                               42};
    test::TempDir folder_;
    modCDlg::Request request_;
    std::wstring name_ = L"old name";
    std::wstring title_ = L"old title";
    int filter_ = 7;
};

TEST_F(WindowsDialogs, OpenGivesPathAndName) {
    const Path file = folder_ / L"some text.txt";
    test::WriteBytes(file, "x");
    const std::wstring initial = file.native();
    request_.file_name = initial;
    Presser presser(IDOK);
    ASSERT_TRUE(modCDlg::ShowOpen(request_, name_, title_));
    EXPECT_EQ(presser.Stop(), L"Pick one");
    EXPECT_EQ(name_, file.native());
    EXPECT_EQ(title_, L"some text.txt");
}

TEST_F(WindowsDialogs, SaveAddsTheExtensionAndTellsTheFilter) {
    const std::wstring folder = folder_.Folder().native();
    request_.file_name = L"fresh";
    request_.folder = folder;
    request_.filter_index = 2;
    Presser presser(IDOK);
    ASSERT_TRUE(modCDlg::ShowSave(request_, L"rtf", filter_, name_, title_));
    EXPECT_EQ(name_, (folder_ / L"fresh.rtf").native());
    EXPECT_EQ(title_, L"fresh.rtf");
    EXPECT_EQ(filter_, 2);
    EXPECT_FALSE(IsFile(folder_ / L"fresh.rtf")) << "the dialog only asks";
}

TEST_F(WindowsDialogs, CancelLeavesEveryOutput) {
    Presser presser(IDCANCEL);
    EXPECT_FALSE(modCDlg::ShowOpen(request_, name_, title_));
    EXPECT_FALSE(modCDlg::ShowSave(request_, L"txt", filter_, name_, title_));
    EXPECT_EQ(name_, L"old name");
    EXPECT_EQ(title_, L"old title");
    EXPECT_EQ(filter_, 7);
}

}  // namespace
}  // namespace wordhawk
