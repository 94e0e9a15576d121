#pragma once

#include "platform/win32/win.h"

namespace wordhawk {

/// tmrBye: closes the window a moment after the command that finished the work has returned.
class ClosingTimer {
  public:
    static constexpr UINT_PTR kId = 1;

    void SetEnabled(HWND form, bool enabled);
    bool Enabled() const { return enabled_; }

  private:
    bool enabled_ = false;
};

}  // namespace wordhawk
