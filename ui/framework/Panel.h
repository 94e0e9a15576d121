#pragma once

#include "ui/framework/Window.h"

namespace wordhawk {

/// A part of a form: holds controls, lets Tab walk into them, and hands everything that they say
/// up to the form.
class Panel : public Window {
  public:
    bool CreateIn(HWND form, int id);

  protected:
    Reply OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
};

}  // namespace wordhawk
