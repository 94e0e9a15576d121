#pragma once

#include "engine/cSpellit.h"
#include "platform/win32/win.h"

namespace wordhawk {

/// Does the checks that other programs ask for, in the main window. Everything is called on the
/// thread that owns the windows.
class CheckHost {
  public:
    virtual ~CheckHost() = default;

    /// Runs one check, letting messages through while the user corrects. Only while no window is
    /// open. Throws when the window cannot be made.
    virtual long Check(SpellCheckArguments& arguments) = 0;
    /// A window is open, be it that of a check that nobody waits for.
    virtual bool WindowIsOpen() const = 0;
    /// Lets the open window have a message of the thread's loop first. True: it was for the window.
    virtual bool PreTranslate(MSG& message) = 0;
    /// The program that waits for the running check has ended: closes the window and keeps what the
    /// user corrected. While a box is open it closes that alone, and is to be called again.
    virtual void CallerEnded() = 0;
};

}  // namespace wordhawk
