#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// The document that a command line names: a quoted path may be followed by other arguments, an
/// unquoted one is the whole line; quotes and apostrophes are dropped and the ends trimmed, unless
/// a file has the name with its apostrophes.
std::wstring CommandFileFrom(std::wstring_view command_line);

/// The name from the drive or root down, as the current folder has it now; an empty one stays so.
std::wstring AbsoluteName(std::wstring_view name);

}  // namespace wordhawk
