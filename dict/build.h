#pragma once

#include "platform/files.h"
#include "platform/text.h"

#include <cstddef>
#include <span>
#include <vector>

namespace wordhawk {

struct BuildOptions {
    const AnsiCodePage* page = &AnsiCodePage::Get(1252);
    /// Also writes the pieces (two letters or more) into which `delimiters` cut a word.
    std::wstring piece_delimiters;
    /// Words of these lists are left out.
    std::vector<Path> excluded_lists;
};

struct BuildReport {
    std::size_t words = 0;
    std::size_t files = 0;
    /// Words left out because the page cannot hold them, or they hold a comma or a control
    /// character.
    std::size_t skipped = 0;
};

/// Writes main dictionary files straight into `output` from plain word lists, one word a line,
/// UTF-8 or ANSI: words are trimmed, lower-cased and made unique. The page is noted beside them.
/// Errors: a list cannot be read, a file cannot be written.
Result<BuildReport> BuildDictionary(std::span<const Path> word_lists, const Path& output,
                                    const BuildOptions& options);

}  // namespace wordhawk
