#pragma once

#include "app/program_state.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace wordhawk::modLoadRes {

/// Section of the language files: the program file's name without extension.
inline constexpr std::wstring_view kTextSection = L"Wordhawk";

/// prefix + text of `id` + suffix. The text comes from the language file in force, else from the
/// built-in table; an unknown id has an empty text.
std::wstring LoadResText(const ProgramState& state, int id, std::wstring_view prefix = {},
                         std::wstring_view suffix = {});

/// The text of `id` with an access key: its own, else its first letter.
std::wstring LoadCaption(const ProgramState& state, int id);

}  // namespace wordhawk::modLoadRes

namespace wordhawk {

/// `text` with %1, %2 ... replaced by the values in their order.
std::wstring Filled(std::wstring_view text, std::initializer_list<std::wstring_view> values);

}  // namespace wordhawk
