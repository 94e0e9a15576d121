#pragma once

#include "ui/framework/Dialog.h"

namespace wordhawk {

/// Hands out the thread's messages, the form's keys to the form, until the program is asked to end.
/// Returns the exit code.
int RunMessageLoop(Dialog& form);

}  // namespace wordhawk
