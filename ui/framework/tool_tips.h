#pragma once

#include "platform/win32/win.h"

#include <map>
#include <string>

namespace wordhawk {

/// The tool tips of one form: a text for each control.
class ToolTips {
  public:
    /// Makes the tip window, owned by the form's window.
    void Create(HWND form);
    /// Gives the control a tip, another one, or (empty) none.
    void Set(HWND control, const std::wstring& text);
    /// Every message of the thread's loop comes through here: the tips follow the mouse by it.
    void Relay(const MSG& message) const;
    /// The tip of a control as it is now.
    std::wstring Get(HWND control) const;

  private:
    HWND form_ = nullptr;
    HWND window_ = nullptr;
    std::map<HWND, std::wstring> texts_;
};

}  // namespace wordhawk
