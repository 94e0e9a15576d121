#include "engine/check/modSubs.h"

#include "app/modValidations.h"

namespace wordhawk::modSubs {

bool IsEdgeDelimiter(wchar_t c) { return kEdgeDelimiters.find(c) != std::wstring_view::npos; }

int HasEdgeDelimiter(std::wstring_view word) {
    return !word.empty() && (IsEdgeDelimiter(word.front()) || IsEdgeDelimiter(word.back())) ? 1 : 0;
}

std::wstring_view StripDelimiters(std::wstring_view word, std::wstring_view delimiters) {
    word = Trim(word);
    const std::size_t n = delimiters.size();
    const auto begins_or_ends_with = [&word](wchar_t c) {
        return !word.empty() && (word.front() == c || word.back() == c);
    };
    // Round k (from 1) has rotated the delimiters k places: their first is then number k and their
    // k-th number 2k - 1, counted from 0 and around the end.
    for (std::size_t k = 1; k <= n; ++k) {
        const wchar_t tested = delimiters[(2 * k - 1) % n];
        const wchar_t stripped = delimiters[k % n];
        if (!begins_or_ends_with(tested)) continue;
        while (begins_or_ends_with(stripped)) {
            if (word.front() == stripped) word.remove_prefix(1);
            if (!word.empty() && word.back() == stripped) word.remove_suffix(1);
        }
    }
    return word;
}

int CleanWord(std::wstring_view& word, const SplitRules& rules) {
    if (word.size() >= 2 && HasEdgeDelimiter(word) != 0) {
        word = StripDelimiters(word, kEdgeDelimiters);
    }
    if (word.size() >= 2 && rules.ignore_numbers && modValidations::HasDigit(word) == 1) word = {};
    if (word.size() >= 2 && rules.ignore_upper_case && modValidations::IsAllUpperCase(word) == 1) {
        word = {};
    }
    return word.size() < 2 ? -1 : 0;
}

}  // namespace wordhawk::modSubs
