#pragma once

#include "ui/framework/controls/Control.h"

namespace wordhawk {

/// An icon of the program's resources.
class Icon : public Control {
  public:
    Icon() : Control(L"Image") {}
    void Create(const Where& where, WORD resource);

    std::wstring Caption() const override { return {}; }
    void SetCaption(const std::wstring&) override {}
};

}  // namespace wordhawk
