#include "ui/framework/Panel.h"

namespace wordhawk {

bool Panel::CreateIn(HWND form, int id) {
    Creation creation;
    creation.class_name = L"WordhawkPanel";
    creation.style = WS_CHILD | WS_CLIPCHILDREN;
    creation.extended_style = WS_EX_CONTROLPARENT;
    creation.parent = form;
    creation.id = id;
    return Create(creation);
}

Panel::Reply Panel::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_DRAWITEM:
        case WM_MEASUREITEM:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
        case WM_CONTEXTMENU:
        case WM_DROPFILES: return SendMessageW(GetParent(handle_), message, wparam, lparam);
        case WM_ERASEBKGND: {
            // The form knows the colour behind its controls.
            const LRESULT brush = SendMessageW(GetParent(handle_), WM_CTLCOLORDLG, wparam,
                                               reinterpret_cast<LPARAM>(handle_));
            if (brush == 0) return {};
            RECT area;
            GetClientRect(handle_, &area);
            FillRect(reinterpret_cast<HDC>(wparam), &area, reinterpret_cast<HBRUSH>(brush));
            return 1;
        }
        default: return {};
    }
}

}  // namespace wordhawk
