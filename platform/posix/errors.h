#pragma once

#include "platform/result.h"

namespace wordhawk {

/// What an errno value means for the file or folder at `where`, in plain English.
Error ErrorFromErrno(int code, const std::filesystem::path& where);

}  // namespace wordhawk
