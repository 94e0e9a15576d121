#include "cli/letter_case.h"

#include "platform/text.h"

namespace wordhawk {

LetterCase CaseOf(std::wstring_view word) {
    const bool first_raised = LowerChar(word.front()) != word.front();
    if (!first_raised) return LetterCase::Other;
    if (word.size() > 1 && Upper(word) == word) return LetterCase::Upper;
    return LetterCase::Capitalised;
}

std::wstring InCase(std::wstring suggestion, LetterCase letter_case) {
    if (letter_case == LetterCase::Upper) return Upper(suggestion);
    if (letter_case == LetterCase::Capitalised && !suggestion.empty()) {
        suggestion.front() = UpperChar(suggestion.front());
    }
    return suggestion;
}

}  // namespace wordhawk
