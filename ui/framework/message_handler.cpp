#include "ui/framework/message_handler.h"

#include <shellapi.h>
#include <windowsx.h>

namespace wordhawk {
namespace {

/// The paths of a drop, which is over with that.
std::vector<std::wstring> TakeFiles(HDROP drop) {
    std::vector<std::wstring> paths(DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0));
    for (UINT i = 0; i < paths.size(); ++i) {
        paths[i].resize(DragQueryFileW(drop, i, nullptr, 0));
        DragQueryFileW(drop, i, paths[i].data(), static_cast<UINT>(paths[i].size()) + 1);
    }
    DragFinish(drop);
    return paths;
}

}  // namespace

POINT ContextRequest::Place() const {
    if (!by_keyboard) return screen;
    RECT bounds{};
    GetWindowRect(control, &bounds);
    const int indent = MulDiv(8, static_cast<int>(GetDpiForWindow(control)), 96);
    return {bounds.left + indent, (bounds.top + bounds.bottom) / 2};
}

int MessageHandler::Dpi() const {
    const UINT dpi = handle_ != nullptr ? GetDpiForWindow(handle_) : GetDpiForSystem();
    return dpi != 0 ? static_cast<int>(dpi) : 96;
}

MessageHandler::Reply MessageHandler::Dispatch(UINT message, WPARAM wparam,
                                               LPARAM lparam) noexcept {
    try {
        return OnMessage(message, wparam, lparam);
    } catch (...) {
        return {};
    }
}

MessageHandler::Reply MessageHandler::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    const Reply reply = OnChildMessage(message, wparam, lparam);
    return reply ? reply : OnWindowMessage(message, wparam, lparam);
}

// What the window's controls and menus say.
MessageHandler::Reply MessageHandler::OnChildMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_COMMAND: {
            const ControlEvent event{LOWORD(wparam), HIWORD(wparam),
                                     reinterpret_cast<HWND>(lparam)};
            return OnCommand(event) ? Reply(0) : Reply();
        }
        case WM_NOTIFY: return OnNotify(*reinterpret_cast<NMHDR*>(lparam));
        case WM_HSCROLL:
        case WM_VSCROLL:
            if (lparam != 0) OnScroll(reinterpret_cast<HWND>(lparam));
            if (lparam != 0 && LOWORD(wparam) == SB_ENDSCROLL)
                OnScrollEnd(reinterpret_cast<HWND>(lparam));
            return {};
        case WM_DRAWITEM:
            return OnDrawItem(*reinterpret_cast<DRAWITEMSTRUCT*>(lparam)) ? Reply(TRUE) : Reply();
        case WM_MEASUREITEM:
            return OnMeasureItem(*reinterpret_cast<MEASUREITEMSTRUCT*>(lparam)) ? Reply(TRUE)
                                                                                : Reply();
        case WM_CTLCOLORBTN:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORDLG: {
            const HBRUSH brush = OnControlColor(message, reinterpret_cast<HDC>(wparam),
                                                reinterpret_cast<HWND>(lparam));
            return brush != nullptr ? Reply(reinterpret_cast<LRESULT>(brush)) : Reply();
        }
        case WM_CONTEXTMENU: {
            ContextRequest request{reinterpret_cast<HWND>(wparam),
                                   {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)},
                                   lparam == -1};
            return OnContextMenu(request) ? Reply(0) : Reply();
        }
        case WM_INITMENUPOPUP: OnInitMenu(reinterpret_cast<HMENU>(wparam)); return {};
        default: return {};
    }
}

// What the system says about the window itself.
MessageHandler::Reply MessageHandler::OnWindowMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_SIZE:
            if (wparam != SIZE_MINIMIZED) OnSize(LOWORD(lparam), HIWORD(lparam));
            return {};
        case WM_GETMINMAXINFO: {
            auto& info = *reinterpret_cast<MINMAXINFO*>(lparam);
            SIZE smallest{info.ptMinTrackSize.x, info.ptMinTrackSize.y};
            OnMinimumSize(smallest);
            info.ptMinTrackSize = {smallest.cx, smallest.cy};
            return 0;
        }
        case WM_DPICHANGED: {
            const auto& wanted = *reinterpret_cast<const RECT*>(lparam);
            SetWindowPos(handle_, nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                         wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
            OnDpiChanged(HIWORD(wparam));
            return 0;
        }
        case WM_TIMER: return OnTimer(wparam) ? Reply(0) : Reply();
        case WM_CLOSE: return OnClose() ? Reply(0) : Reply();
        case WM_DESTROY: OnDestroy(); return {};
        case WM_ERASEBKGND:
            return OnEraseBackground(reinterpret_cast<HDC>(wparam)) ? Reply(1) : Reply();
        case WM_DROPFILES: OnDropFiles(TakeFiles(reinterpret_cast<HDROP>(wparam))); return 0;
        case WM_SETTINGCHANGE:
        case WM_SYSCOLORCHANGE:
        case WM_THEMECHANGED: OnAppearanceChanged(); return {};
        case WM_ACTIVATE: OnActivate(LOWORD(wparam) != WA_INACTIVE); return {};
        default: return {};
    }
}

}  // namespace wordhawk
