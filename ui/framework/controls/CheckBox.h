#pragma once

#include "ui/framework/controls/Control.h"

namespace wordhawk {

/// A box with a check mark that a click toggles.
class CheckBox : public Control {
  public:
    CheckBox() : Control(L"CheckBox") {}
    void Create(const Where& where);
    bool Checked() const { return Index(BM_GETCHECK) == BST_CHECKED; }
    void SetChecked(bool checked) { Send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED); }

  protected:
    explicit CheckBox(const wchar_t* type_name) : Control(type_name) {}
};

/// One of a group of which exactly one is chosen. The first of a group starts it.
class OptionButton : public CheckBox {
  public:
    enum class Group { Starts, Continues };
    OptionButton() : CheckBox(L"OptionButton") {}
    void Create(const Where& where, Group group);
};

/// One of a row of tabs, of which exactly one is chosen: arrow keys lead from tab to tab.
class TabButton : public CheckBox {
  public:
    TabButton() : CheckBox(L"Label") {}
    void Create(const Where& where, OptionButton::Group group);
};

}  // namespace wordhawk
