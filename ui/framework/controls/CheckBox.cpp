#include "ui/framework/controls/CheckBox.h"

namespace wordhawk {

void CheckBox::Create(const Where& where) { Make(where, L"BUTTON", WS_TABSTOP | BS_AUTOCHECKBOX); }

void OptionButton::Create(const Where& where, Group group) {
    Make(where, L"BUTTON",
         BS_AUTORADIOBUTTON | (group == Group::Starts ? WS_GROUP | WS_TABSTOP : 0));
}

}  // namespace wordhawk
