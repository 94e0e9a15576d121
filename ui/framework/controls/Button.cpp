#include "ui/framework/controls/Button.h"

namespace wordhawk {

void Button::Create(const Where& where) { Make(where, L"BUTTON", WS_TABSTOP | BS_PUSHBUTTON); }

void Button::SetDefault(bool is_default) {
    Send(BM_SETSTYLE, is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
}

void Button::Click() {
    if (Enabled() && Visible()) {
        SendMessageW(GetParent(handle_), WM_COMMAND, MAKEWPARAM(Id(), BN_CLICKED),
                     reinterpret_cast<LPARAM>(handle_));
    }
}

}  // namespace wordhawk
