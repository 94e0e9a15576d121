#pragma once

#include "dict/affix_rules.h"
#include "dict/pack_extras.h"

#include <cstddef>
#include <functional>
#include <set>
#include <string>

namespace wordhawk {

/// Of a spelled-out form: it is a word by itself. Beside it the roles of CompoundRole.
inline constexpr unsigned kWordAlone = 1;
/// Of a spelled-out form: it stands in the dictionary as it is, without an affix.
inline constexpr unsigned kWordStem = 16;

struct ExpansionReport {
    std::size_t stems = 0;
    /// What the dictionary can say and a list of words cannot (names of commands); the words that
    /// it would make are missing.
    std::set<std::string> not_expressed;
};

/// Calls `use(form, roles)` for every form that the hunspell dictionary `stems` (`.dic`) and its
/// rules (the
/// `.aff` file of the same name beside it) spell out: stems, and stems with their prefixes and up
/// to two suffixes; in no order, with repeats, in the spelling of the dictionary. `roles` is a sum
/// of these and of CompoundRole, never 0. Words that it marks as forbidden are not among them.
/// Errors: a file cannot be read, or is no such file.
Result<ExpansionReport> ExpandHunspellDictionary(
    const Path& stems, const std::function<void(std::wstring_view, unsigned roles)>& use);

}  // namespace wordhawk
