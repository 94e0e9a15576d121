#pragma once

#include "app/program_state.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

/// Captions of the main window that carry numbers.
namespace wordhawk::captions {

/// lblNIL: "12 - Not Found", in English whatever the language.
std::wstring NotFound(std::size_t count);
/// lblNIL before the first check, in the interface language.
std::wstring NothingFoundYet(const ProgramState& state);

/// lblCnt: "5 - Sugg&estions:", "1 - Sugg&estion:", "0 - Sugg&estions:".
std::wstring SuggestionCount(const ProgramState& state, std::size_t count);
/// lblCnt before the first check: without the colon.
std::wstring NoSuggestionsYet(const ProgramState& state);

/// lblScore: "80% - 100% Match"; "100% Match" at 100.
std::wstring ScoreRange(const ProgramState& state, int value);
/// lbldiversity: "Less- diversity(2) -More".
std::wstring Diversity(int value);

/// Entry of the score list: "85%".
std::wstring ScoreText(std::int32_t percent);
/// `text` with blanks before it until it is as wide as "100%" under `width`.
std::wstring PadScoreText(std::wstring_view text,
                          const std::function<int(std::wstring_view)>& width);

/// Question before a word goes into the main dictionary, and its title.
std::wstring MainAddQuestion(const ProgramState& state);
std::wstring MainAddTitle(const ProgramState& state);

/// Question before a word leaves the main dictionary, and its title.
std::wstring MainRemoveQuestion(const ProgramState& state, std::wstring_view word);
std::wstring MainRemoveTitle(const ProgramState& state);

}  // namespace wordhawk::captions
