#pragma once

#include "ui/framework/controls/Control.h"

namespace wordhawk {

/// A push button.
class Button : public Control {
  public:
    Button() : Control(L"CommandButton") {}
    void Create(const Where& where);
    /// Draws the default border; the dialog's default button id is the form's affair.
    void SetDefault(bool is_default);
    /// As a person would: does nothing when the button is disabled or hidden.
    void Click();
};

}  // namespace wordhawk
