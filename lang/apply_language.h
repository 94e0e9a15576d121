#pragma once

#include "app/program_state.h"
#include "lang/form_texts.h"

namespace wordhawk {

/// Replaces every text id that the form and its controls carry by the text in the language in
/// force.
void ApplyLanguage(const ProgramState& state, Form& form);

/// Empties the texts and pictures of the form and its controls, when it unloads.
void ClearFormTexts(Form& form);

}  // namespace wordhawk
