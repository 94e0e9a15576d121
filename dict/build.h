#pragma once

#include "dict/pack_update.h"
#include "dict/word_collection.h"
#include "platform/files.h"

#include <cstddef>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace wordhawk {

/// Where the words of a dictionary come from beside plain lists, and how they are taken.
struct BuildOptions : CollectionRules {
    /// Hunspell dictionaries (`.dic`), each with its rules (`.aff`) beside it.
    std::vector<Path> hunspell_dictionaries;
    /// Words of these lists are left out.
    std::vector<Path> excluded_lists;
    /// Words of these lists are pieces only (see PackExtras).
    std::vector<Path> piece_lists;
    PackOrigin origin = PackOrigin::Own;
};

struct BuildReport {
    std::size_t words = 0;
    std::size_t files = 0;
    /// Words left out because the page cannot hold them, or they hold a comma or a control
    /// character.
    std::size_t skipped = 0;
    /// Commands of hunspell dictionaries that make words which are missing here.
    std::set<std::string> not_expressed;
};

/// Writes main dictionary files and the pack's own lists straight into `output`, from plain word
/// lists (one word a line, UTF-8 or ANSI) and what the options name: words are trimmed, lower-cased
/// and made unique. The page is noted beside them. Errors: a list cannot be read, a
/// file cannot be written.
Result<BuildReport> BuildDictionary(std::span<const Path> word_lists, const Path& output,
                                    const BuildOptions& options);

}  // namespace wordhawk
