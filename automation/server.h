#pragma once

#include "automation/check_host.h"
#include "automation/type_library.h"

namespace wordhawk {

/// Serves other programs until the last of them is gone and no window is open. Called on the thread
/// that owns the windows; returns the exit code.
///
/// Clients are answered on threads of the system's own, so that one of them can ask while another
/// waits for its user; what needs the window goes through a queue to this thread.
int RunServer(const TypeLibrary& library, CheckHost& host);

}  // namespace wordhawk
