#pragma once

#include "app/start_mode.h"
#include "automation/type_library.h"

namespace wordhawk {

/// Writes what other programs need to find the class into the registry, for the user or for the
/// machine, as 64-bit and as 32-bit programs look it up. After an error nothing of it is left.
/// Returns an error of the system's, or ERROR_SUCCESS.
LSTATUS RegisterServer(const TypeLibrary& library, RegisterFor whom);

/// Takes all of it out again; what is not there is no error.
LSTATUS UnregisterServer(const TypeLibrary& library, RegisterFor whom);

}  // namespace wordhawk
