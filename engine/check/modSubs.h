#pragma once

#include "engine/check/split_rules.h"
#include "platform/text.h"

#include <string>
#include <string_view>

/// Cleaning of one word.
namespace wordhawk::modSubs {

/// Characters that may be cut off the ends of a word; their order is part of StripDelimiters.
inline constexpr std::wstring_view kEdgeDelimiters = L".'\x2018()[]{}<>:?!\"";

bool IsEdgeDelimiter(wchar_t c);

/// Non-zero when the first or the last character is an edge delimiter.
int HasEdgeDelimiter(std::wstring_view word);

/// The word without delimiters at its ends. Tested and stripped characters pair up by a rotation of
/// `delimiters`, so most pairs of different punctuation stay: apostrophes always go.
std::wstring_view StripDelimiters(std::wstring_view word, std::wstring_view delimiters);

/// Cleans the word in place: 0 when it is to be checked, -1 when it is to be skipped.
int CleanWord(std::wstring_view& word, const SplitRules& rules);

}  // namespace wordhawk::modSubs
