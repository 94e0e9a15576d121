#pragma once

// The one place that includes the system's header. NOMINMAX, STRICT, UNICODE and
// WIN32_LEAN_AND_MEAN come from the build.
#include <windows.h>
