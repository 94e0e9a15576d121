#pragma once

#include "automation/check_host.h"
#include "ui/main_window/frmNewSpell.h"
#include "ui/ui_services_win32.h"

#include <memory>

namespace wordhawk {

/// Makes the main window for every check that another program asks for.
class AutomationHost : public CheckHost {
  public:
    AutomationHost(Program& program, Desktop& desktop, UiServicesWin32& ui);

    long Check(SpellCheckArguments& arguments) override;
    bool WindowIsOpen() const override { return Window() != nullptr; }
    bool PreTranslate(MSG& message) override { return form_ && form_->PreTranslate(message); }
    void CallerEnded() override;

  private:
    HWND Window() const { return form_ ? form_->Handle() : nullptr; }

    Program& program_;
    Desktop& desktop_;
    SharedMainWindow shared_;
    std::unique_ptr<frmNewSpell> form_;
};

}  // namespace wordhawk
