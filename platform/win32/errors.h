#pragma once

#include "platform/result.h"

#include <string>

namespace wordhawk {

/// What a system error code means for the file or folder at `where`, in plain English.
Error ErrorFromCode(unsigned long code, const std::filesystem::path& where);

/// The path as the system's file calls take it: one too long for the classic limit becomes absolute
/// and gets the prefix that lifts the limit.
std::wstring SystemPath(const std::filesystem::path& path);

}  // namespace wordhawk
