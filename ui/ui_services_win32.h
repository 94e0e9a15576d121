#pragma once

#include "platform/ui_services.h"
#include "platform/win32/win.h"

#include <functional>

namespace wordhawk {

/// Boxes and the busy pointer on the screen.
class UiServicesWin32 : public UiServices {
  public:
    Answer ShowMessage(std::wstring_view text, std::wstring_view title, MessageIcon icon,
                       MessageButtons buttons) override;
    void Beep() override;
    void SetBusy(bool busy) override;

    /// The window that boxes belong to; none gives null. It takes no input while a box is open,
    /// also when another program had the keyboard as the box came up.
    std::function<HWND()> owner;

  private:
    int busy_depth_ = 0;
    HCURSOR before_ = nullptr;
};

}  // namespace wordhawk
