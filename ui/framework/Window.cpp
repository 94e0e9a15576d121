#include "ui/framework/Window.h"

namespace wordhawk {

Window::~Window() {
    if (handle_ == nullptr) return;
    // The derived parts are gone already, so the window's last messages must not reach them.
    SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    DestroyWindow(handle_);
}

bool Window::Create(const Creation& creation) {
    WNDCLASSEXW known{};
    known.cbSize = sizeof known;
    const HINSTANCE module = GetModuleHandleW(nullptr);
    if (!GetClassInfoExW(module, creation.class_name, &known)) {
        WNDCLASSEXW made{};
        made.cbSize = sizeof made;
        made.lpfnWndProc = Procedure;
        made.hInstance = module;
        made.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        made.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        made.lpszClassName = creation.class_name;
        RegisterClassExW(&made);
    }
    CreateWindowExW(creation.extended_style, creation.class_name, L"", creation.style, 0, 0, 0, 0,
                    creation.parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(creation.id)),
                    module, this);
    return handle_ != nullptr;
}

void Window::Destroy() {
    if (handle_ != nullptr) DestroyWindow(handle_);
}

LRESULT CALLBACK Window::Procedure(HWND window, UINT message, WPARAM wparam,
                                   LPARAM lparam) noexcept {
    if (message == WM_NCCREATE) {
        auto* self = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lparam)->lpCreateParams);
        self->handle_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self == nullptr) return DefWindowProcW(window, message, wparam, lparam);
    const Reply reply = self->Dispatch(message, wparam, lparam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        self->handle_ = nullptr;
    }
    return reply ? *reply : DefWindowProcW(window, message, wparam, lparam);
}

}  // namespace wordhawk
