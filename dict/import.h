#pragma once

#include "app/delimiter_flags.h"
#include "app/progress.h"
#include "dict/dictionary_store.h"
#include "platform/ui_services.h"

namespace wordhawk {

/// Flags of the store that the import options show, and those that they save: one apart.
inline constexpr int kFirstShownImportFlag = 249;
inline constexpr int kFirstSavedImportFlag = 250;

/// File name of the dictionary that an import of `source` makes: its own name, or for a list of
/// another kind its name with the dictionaries' extension.
std::wstring ImportedName(const Path& source);

/// What an import did with the lines of its source; empty ones are not counted.
struct ImportReport {
    int added = 0;
    int known = 0;      ///< left out as the switches say
    int too_short = 0;  ///< words of fewer than two characters
    int unfit = 0;      ///< cannot stand in a dictionary of this page
};

/// Makes the custom dictionary `file_name` from the words of `source` that the user's dictionaries
/// do not have (as flags 249 and 250 say) and returns the number of words added. An empty or
/// unreadable source is reported through `ui` and gives 0. Errors: the new file could not be
/// written.
Result<int> ImportDictionary(DictionaryStore& store, const DelimiterFlagStore& flags,
                             const Path& source, std::wstring_view file_name, Progress& progress,
                             UiServices& ui);

/// The same, with a report.
Result<ImportReport> ImportWordList(DictionaryStore& store, const DelimiterFlagStore& flags,
                                    const Path& source, std::wstring_view file_name,
                                    Progress& progress, UiServices& ui);

}  // namespace wordhawk
