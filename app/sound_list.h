#pragma once

#include "app/program_state.h"

#include <string>
#include <vector>

namespace wordhawk {

/// One of the sounds to choose from.
struct SoundChoice {
    /// File name within the sound folder, whole path for others.
    std::wstring name;
    std::wstring path;
};

/// The sounds of the sound folder, and those chosen elsewhere before that are still there.
std::vector<SoundChoice> SoundChoices(const ProgramState& state);

/// Keeps a sound from another folder among the choices, the latest first. False when that could not
/// be written.
bool RememberSound(const ProgramState& state, const std::wstring& path);

}  // namespace wordhawk
