#include "ui/framework/tool_tips.h"

#include <commctrl.h>

namespace wordhawk {

void ToolTips::Create(HWND form) {
    form_ = form;
    window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0,
                              0, 0, 0, form, nullptr, GetModuleHandleW(nullptr), nullptr);
    // Long tips wrap instead of running off the screen.
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, 480);
}

void ToolTips::Set(HWND control, const std::wstring& text) {
    TTTOOLINFOW tool{};
    // The size without the member that only comctl32 version 6 knows works with every version.
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND;
    tool.hwnd = form_;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    const bool known = texts_.contains(control);
    if (text.empty()) {
        if (known) SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        texts_.erase(control);
        return;
    }
    texts_[control] = text;
    // Wine makes the tip's window too narrow for the last character: let it be a blank.
    std::wstring shown = text + L'\u00A0';
    tool.lpszText = shown.data();
    SendMessageW(window_, known ? TTM_UPDATETIPTEXTW : TTM_ADDTOOLW, 0,
                 reinterpret_cast<LPARAM>(&tool));
}

void ToolTips::Relay(const MSG& message) const {
    if (message.message < WM_MOUSEFIRST || message.message > WM_MOUSELAST) return;
    MSG copy = message;
    SendMessageW(window_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
}

std::wstring ToolTips::Get(HWND control) const {
    const auto found = texts_.find(control);
    return found == texts_.end() ? std::wstring() : found->second;
}

}  // namespace wordhawk
