#pragma once

#include "platform/ui_services.h"
#include "platform/win32/win.h"

namespace wordhawk {

/// Boxes and the busy pointer on the screen, over the thread's active window.
class UiServicesWin32 : public UiServices {
  public:
    Answer ShowMessage(std::wstring_view text, std::wstring_view title, MessageIcon icon,
                       MessageButtons buttons) override;
    void Beep() override;
    void SetBusy(bool busy) override;

  private:
    int busy_depth_ = 0;
    HCURSOR before_ = nullptr;
};

}  // namespace wordhawk
