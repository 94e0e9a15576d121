#include "ui/framework/controls/Control.h"

namespace wordhawk {

void Control::Make(const Where& where, const wchar_t* class_name, DWORD style,
                   DWORD extended_style) {
    id_ = where.id;
    tips_ = where.tips;
    handle_ =
        CreateWindowExW(extended_style, class_name, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0,
                        where.parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(where.id)),
                        GetModuleHandleW(nullptr), nullptr);
    if (tips_ != nullptr && !tool_tip_.empty()) tips_->Set(handle_, tool_tip_);
}

std::wstring Control::Text() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(handle_)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(handle_, text.data(), static_cast<int>(text.size()))));
    return text;
}

void Control::SetText(std::wstring_view text) {
    const std::wstring value(text);
    // Writing the same text again would only flicker, and tell screen readers of a change.
    if (value != Text()) SetWindowTextW(handle_, value.c_str());
}

void Control::SetEnabled(bool enabled) {
    if (enabled != Enabled()) EnableWindow(handle_, enabled);
}

bool Control::Visible() const { return (GetWindowLongPtrW(handle_, GWL_STYLE) & WS_VISIBLE) != 0; }

void Control::SetVisible(bool visible) { ShowWindow(handle_, visible ? SW_SHOWNA : SW_HIDE); }

bool Control::HasFocus() const {
    const HWND focus = GetFocus();
    return focus != nullptr && (focus == handle_ || IsChild(handle_, focus));
}

void Control::SetFocus() const { ::SetFocus(handle_); }

RECT Control::Bounds() const {
    RECT bounds{};
    GetWindowRect(handle_, &bounds);
    MapWindowPoints(nullptr, GetParent(handle_), reinterpret_cast<POINT*>(&bounds), 2);
    return bounds;
}

void Control::SetToolTipText(const std::wstring& text) {
    tool_tip_ = text;
    if (tips_ != nullptr && handle_ != nullptr) tips_->Set(handle_, text);
}

}  // namespace wordhawk
