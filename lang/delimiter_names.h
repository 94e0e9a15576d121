#pragma once

#include "app/program_state.h"

#include <string>

namespace wordhawk {

/// How a delimiter is shown in a list: the character itself, or a name where nothing would be seen.
/// `code` is its single-byte code in the page in force.
std::wstring DelimiterName(const ProgramState& state, unsigned char code);

/// The name with both its codes, for a tool tip.
std::wstring DelimiterTip(const ProgramState& state, unsigned char code);

}  // namespace wordhawk
