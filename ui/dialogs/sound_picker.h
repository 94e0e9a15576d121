#pragma once

#include "app/program_state.h"
#include "ui/desktop.h"

#include <optional>
#include <string>

namespace wordhawk {

/// Lets the user listen to the sounds there are and choose one, or none (empty). `current` is
/// chosen at first. Nothing when the user cancelled.
std::optional<std::wstring> PickSound(const ProgramState& state, Desktop& desktop, HWND owner,
                                      const std::wstring& current);

}  // namespace wordhawk
