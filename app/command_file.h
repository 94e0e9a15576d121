#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// The document that a command line names: a quoted path may be followed by other arguments, an
/// unquoted one is the whole line; quotes and apostrophes are dropped and the ends trimmed.
std::wstring CommandFileFrom(std::wstring_view command_line);

}  // namespace wordhawk
