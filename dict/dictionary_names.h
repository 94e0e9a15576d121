#pragma once

#include "platform/result.h"

#include <string>
#include <string_view>

namespace wordhawk {

/// Checks that `name` is a plain file name for a custom dictionary and never a path: no separators,
/// drive letters, "..", device names, control characters, wildcards, trailing dot or blank, and at
/// most 255 units. Returns the name with ".DIC" added when it has no such extension.
Result<std::wstring> CustomDictionaryName(std::wstring_view name);

/// The same check, extension aside: whether a name from the settings may be joined to a folder.
bool IsPlainFileName(std::wstring_view name);

}  // namespace wordhawk
