#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// How a word of a text is written, as far as suggestions follow it.
enum class LetterCase { Other, Capitalised, Upper };

/// `word` is not empty.
LetterCase CaseOf(std::wstring_view word);

/// A lower-case suggestion in the manner of the word that it stands for.
std::wstring InCase(std::wstring suggestion, LetterCase letter_case);

}  // namespace wordhawk
