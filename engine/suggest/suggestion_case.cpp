#include "engine/suggest/suggestion_case.h"

#include "app/modValidations.h"
#include "platform/text.h"

namespace wordhawk {

std::wstring MatchCase(std::wstring_view suggestion, std::wstring_view document_word) {
    if (modValidations::IsAllUpperCase(document_word) == 1) return Upper(suggestion);
    std::wstring matched(suggestion);
    // Any different first letter counts, not only the same one in capitals.
    if (!document_word.empty() && !matched.empty() && matched.front() != document_word.front()) {
        matched.front() = UpperChar(matched.front());
    }
    return matched;
}

std::optional<std::wstring> TakeSuggestion(std::wstring_view entry,
                                           std::wstring_view document_word) {
    if (entry == kNoSuggestions) return std::nullopt;
    return MatchCase(entry, document_word);
}

std::optional<std::wstring> TakeWideSuggestion(std::wstring_view entry,
                                               std::wstring_view document_word) {
    const bool has_capitals = document_word != Lower(document_word);
    return TakeSuggestion(entry, has_capitals ? document_word : std::wstring_view());
}

}  // namespace wordhawk
