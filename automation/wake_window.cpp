#include "automation/wake_window.h"

#include <utility>

namespace wordhawk {
namespace {

constexpr const wchar_t* kClassName = L"WordhawkAutomation";

}  // namespace

WakeWindow::WakeWindow(std::function<void()> on_wake) : on_wake_(std::move(on_wake)) {
    WNDCLASSEXW made{};
    made.cbSize = sizeof made;
    made.lpfnWndProc = Procedure;
    made.hInstance = GetModuleHandleW(nullptr);
    made.lpszClassName = kClassName;
    RegisterClassExW(&made);
    window_ = CreateWindowExW(0, kClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                              made.hInstance, nullptr);
    if (window_ != nullptr) {
        SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
}

WakeWindow::~WakeWindow() {
    if (window_ != nullptr) DestroyWindow(window_);
}

LRESULT CALLBACK WakeWindow::Procedure(HWND window, UINT message, WPARAM wparam,
                                       LPARAM lparam) noexcept {
    auto* const self = reinterpret_cast<WakeWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self == nullptr || (message != WM_APP && message != WM_TIMER)) {
        return DefWindowProcW(window, message, wparam, lparam);
    }
    if (message == WM_TIMER) KillTimer(window, wparam);
    try {
        self->on_wake_();
    } catch (...) {
        // The next wake tries again.
    }
    return 0;
}

}  // namespace wordhawk
