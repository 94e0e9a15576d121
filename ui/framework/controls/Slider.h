#pragma once

#include "ui/framework/controls/Control.h"

namespace wordhawk {

/// A horizontal slider over whole numbers.
class Slider : public Control {
  public:
    Slider() : Control(L"HScrollBar") {}
    void Create(const Where& where, int minimum, int maximum);
    int Value() const;
    /// Kept within the range; does not tell the form.
    void SetValue(int value);

    std::wstring Caption() const override { return {}; }
    void SetCaption(const std::wstring&) override {}
};

}  // namespace wordhawk
