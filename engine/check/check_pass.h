#pragma once

#include "app/progress.h"
#include "dict/dictionary_store.h"
#include "engine/check/split_rules.h"

#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// The words of a text that no dictionary holds: each once (without regard to case), lower-cased,
/// in the order of their first appearance.
struct CheckResult {
    std::vector<std::wstring> words;
    bool cancelled = false;
};

/// Runs the check pass over a whole text whose line breaks may be CR, LF or CR LF. The cancel flag
/// of `state` is cleared first and set when the progress display asks to stop; the words found so
/// far are kept.
CheckResult CheckText(std::wstring_view text, DictionaryStore& store, const SplitRules& rules,
                      Progress& progress);

}  // namespace wordhawk
