#pragma once

#include "app/apostrophes.h"
#include "app/delimiter_flags.h"
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
    /// The typographic apostrophe reads as the straight one.
    bool straight_apostrophe = false;

    static SplitRules From(const ProgramState& state, const Settings& settings) {
        SplitRules rules{
            settings.LettersStay != 0 ? WithoutLetters(state.Delimiters) : state.Delimiters,
            settings.IgnoreWebs != 0, settings.IgnoreNumbers != 0, settings.IgnoreUCase != 0,
            settings.StraightApostrophe != 0};
        if (rules.straight_apostrophe) std::erase(rules.delimiters, kTypographicApostrophe);
        return rules;
    }
};

}  // namespace wordhawk
