#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wordhawk {

/// What the suggestion list shows when the search found nothing, and the score beside it.
inline constexpr std::wstring_view kNoSuggestions = L"(no suggestions)";
inline constexpr std::wstring_view kNoScore = L" ";

/// `suggestion` in the case of `document_word`: upper case for a word in capitals, else with a
/// capital first letter whenever the first letters differ (whichever letters they are), else as it
/// is; as it is, too, for an empty `document_word`.
std::wstring MatchCase(std::wstring_view suggestion, std::wstring_view document_word);

/// The text that a suggestion list entry gives the change-to box; none for kNoSuggestions.
std::optional<std::wstring> TakeSuggestion(std::wstring_view entry,
                                           std::wstring_view document_word);

/// The same for an entry from the whole dictionary, where the first letter is often the mistake:
/// a word without capitals gets none.
std::optional<std::wstring> TakeWideSuggestion(std::wstring_view entry,
                                               std::wstring_view document_word);

}  // namespace wordhawk
