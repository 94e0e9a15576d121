#include "ui/framework/held_keys.h"

namespace wordhawk {
namespace {

/// The keys that press a button of a box as they go down.
bool Answers(WPARAM key) { return key == VK_RETURN || key == VK_ESCAPE; }

LRESULT CALLBACK WithoutHeldKeys(int code, WPARAM wparam, LPARAM lparam) {
    const MSG& message = *reinterpret_cast<const MSG*>(lparam);
    if (code == MSGF_DIALOGBOX && message.message == WM_KEYDOWN && Answers(message.wParam) &&
        IsRepeat(message)) {
        return TRUE;
    }
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

}  // namespace

bool HeldKeys::Counts(const MSG& message) {
    const HWND focus = GetFocus();
    if (IsRepeat(message)) return focus != nullptr && key_ == message.wParam && where_ == focus;
    key_ = message.wParam;
    where_ = focus;
    return true;
}

IgnoreHeldKeys::IgnoreHeldKeys()
    : hook_(SetWindowsHookExW(WH_MSGFILTER, WithoutHeldKeys, nullptr, GetCurrentThreadId())) {}

IgnoreHeldKeys::~IgnoreHeldKeys() {
    if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
}

}  // namespace wordhawk
