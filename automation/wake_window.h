#pragma once

#include "platform/win32/win.h"

#include <functional>

namespace wordhawk {

/// Lets any thread get the attention of the thread that owns the windows, also while a box or a
/// menu of the system's keeps that thread in a loop of its own.
class WakeWindow {
  public:
    /// `on_wake` runs on the thread that makes this.
    explicit WakeWindow(std::function<void()> on_wake);
    ~WakeWindow();
    WakeWindow(const WakeWindow&) = delete;
    WakeWindow& operator=(const WakeWindow&) = delete;

    bool IsMade() const { return window_ != nullptr; }
    /// From any thread.
    void Wake() const { PostMessageW(window_, WM_APP, 0, 0); }
    /// Wakes once more after a while.
    void WakeLater(UINT milliseconds) { SetTimer(window_, 1, milliseconds, nullptr); }

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam,
                                      LPARAM lparam) noexcept;

    std::function<void()> on_wake_;
    HWND window_ = nullptr;
};

}  // namespace wordhawk
