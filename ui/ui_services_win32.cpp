#include "ui/ui_services_win32.h"

#include "ui/framework/held_keys.h"

#include <string>

namespace wordhawk {
namespace {

UINT Style(MessageIcon icon, MessageButtons buttons) {
    UINT style = 0;
    switch (icon) {
        case MessageIcon::None: break;
        case MessageIcon::Information: style = MB_ICONINFORMATION; break;
        case MessageIcon::Exclamation: style = MB_ICONEXCLAMATION; break;
        case MessageIcon::Question: style = MB_ICONQUESTION; break;
    }
    switch (buttons) {
        case MessageButtons::Ok: return style | MB_OK;
        case MessageButtons::YesNo: return style | MB_YESNO;
        case MessageButtons::YesNoDefaultNo: return style | MB_YESNO | MB_DEFBUTTON2;
    }
    return style;
}
static_assert((MB_ICONQUESTION | MB_YESNO | MB_DEFBUTTON2) == 292);

}  // namespace

Answer UiServicesWin32::ShowMessage(std::wstring_view text, std::wstring_view title,
                                    MessageIcon icon, MessageButtons buttons) {
    const HWND form = owner ? owner() : nullptr;
    // A dialog of the form's, when one is open.
    const HWND over = form != nullptr ? GetLastActivePopup(form) : GetActiveWindow();
    const IgnoreHeldKeys guard;
    const int pressed = MessageBoxW(over, std::wstring(text).c_str(), std::wstring(title).c_str(),
                                    Style(icon, buttons));
    return pressed == IDYES ? Answer::Yes : pressed == IDNO ? Answer::No : Answer::Ok;
}

void UiServicesWin32::Beep() { MessageBeep(MB_OK); }

void UiServicesWin32::SetBusy(bool busy) {
    busy_depth_ += busy ? 1 : -1;
    if (busy && busy_depth_ == 1) before_ = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    if (!busy && busy_depth_ == 0) SetCursor(before_);
}

}  // namespace wordhawk
