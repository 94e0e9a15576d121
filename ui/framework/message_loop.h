#pragma once

#include "ui/framework/Dialog.h"

namespace wordhawk {

/// Hands out the thread's messages, the form's keys to the form, until the program is asked to end.
/// Returns the exit code.
int RunMessageLoop(Dialog& form);

/// The same while the form has its window; also returns when the program is asked to end, which it
/// leaves to the loop outside.
void RunMessagesUntilClosed(Dialog& form);

/// Hands out the messages that wait now. False when the program is asked to end, which the loop
/// below still gets to know.
bool PumpWaitingMessages(Dialog& form);

}  // namespace wordhawk
