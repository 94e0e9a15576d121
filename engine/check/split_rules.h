#pragma once

#include "app/modRegs.h"
#include "app/program_state.h"

#include <string>

namespace wordhawk {

/// What decides how a text is cut into the words that are looked up.
struct SplitRules {
    std::wstring delimiters;
    bool ignore_webs = true;
    bool ignore_numbers = true;
    bool ignore_upper_case = true;

    static SplitRules From(const ProgramState& state, const Settings& settings) {
        return {state.Delimiters, settings.IgnoreWebs != 0, settings.IgnoreNumbers != 0,
                settings.IgnoreUCase != 0};
    }
};

}  // namespace wordhawk
