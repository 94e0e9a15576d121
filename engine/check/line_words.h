#pragma once

#include "app/progress.h"
#include "engine/check/split_rules.h"

#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

// Splitting step by step, for single lines and short texts, and the measure that the one-pass
// WordScanner is held to.

/// The text without Internet addresses (when the rules say so) and with every delimiter replaced.
/// Stops between delimiters when `progress` is cancelled.
std::wstring ReplaceDelimiters(std::wstring_view text, const SplitRules& rules,
                               std::wstring_view replacement, Progress& progress);

/// The distinct words of a text whose delimiters are spaces already, lower-cased and cleaned, in
/// the order of their first appearance. A word that holds commas is cut at them.
std::vector<std::wstring> ExtractLineWords(std::wstring_view text, const SplitRules& rules);

}  // namespace wordhawk
