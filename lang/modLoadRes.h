#pragma once

#include "app/program_state.h"

#include <string>
#include <string_view>

namespace wordhawk::modLoadRes {

/// Section of the language files: the program file's name without extension.
inline constexpr std::wstring_view kTextSection = L"Wordhawk";

/// prefix + text of `id` + suffix. The text comes from the language file in force, else from the
/// built-in table; an unknown id has an empty text.
std::wstring LoadResText(const ProgramState& state, int id, std::wstring_view prefix = {},
                         std::wstring_view suffix = {});

}  // namespace wordhawk::modLoadRes
