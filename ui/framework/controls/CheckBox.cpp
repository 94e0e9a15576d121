#include "ui/framework/controls/CheckBox.h"

namespace wordhawk {

void CheckBox::Create(const Where& where) { Make(where, L"BUTTON", WS_TABSTOP | BS_AUTOCHECKBOX); }

void OptionButton::Create(const Where& where, Group group) {
    Make(where, L"BUTTON",
         BS_AUTORADIOBUTTON | (group == Group::Starts ? WS_GROUP | WS_TABSTOP : 0));
}

void TabButton::Create(const Where& where, OptionButton::Group group) {
    Make(where, L"BUTTON",
         BS_AUTORADIOBUTTON | BS_PUSHLIKE |
             (group == OptionButton::Group::Starts ? WS_GROUP | WS_TABSTOP : 0));
}

}  // namespace wordhawk
