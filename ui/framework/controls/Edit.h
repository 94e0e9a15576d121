#pragma once

#include "ui/framework/controls/Control.h"

namespace wordhawk {

/// A one-line text box.
class Edit : public Control {
  public:
    Edit() : Control(L"TextBox") {}
    void Create(const Where& where);
    void SelectAll() const { Send(EM_SETSEL, 0, -1); }
    /// Most UTF-16 units that can be typed.
    void SetLongest(int units) { Send(EM_SETLIMITTEXT, static_cast<WPARAM>(units)); }

    // What a text box holds is not a caption.
    std::wstring Caption() const override { return {}; }
    void SetCaption(const std::wstring&) override {}
};

}  // namespace wordhawk
