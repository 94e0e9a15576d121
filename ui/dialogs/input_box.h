#pragma once

#include "app/program_state.h"
#include "platform/win32/win.h"

#include <optional>
#include <string>

namespace wordhawk {

/// What an input box asks.
struct InputRequest {
    std::wstring title;
    std::wstring prompt;
    std::wstring text;
    /// In UTF-16 units.
    int longest = 255;
};

/// Asks for one line of text over `owner`. None when the user cancelled.
std::optional<std::wstring> AskForText(const ProgramState& state, HWND owner,
                                       const InputRequest& request);

}  // namespace wordhawk
