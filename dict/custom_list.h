#pragma once

#include "app/modRegs.h"
#include "app/program_state.h"
#include "platform/result.h"

#include <span>
#include <string>
#include <vector>

namespace wordhawk {

/// What speaks against a name for a new custom dictionary.
enum class NameProblem {
    None,
    /// It would be a path, a device or otherwise no file name.
    NotAName,
    /// The settings, which are in the page in force, cannot hold it.
    NotStorable,
    /// A dictionary has it already, perhaps in other case.
    Taken,
};

/// The custom dictionaries on disk, in upper case, ascending.
std::vector<std::wstring> CustomDictionaryFiles(const ProgramState& state);

/// `name` is given with or without its extension.
NameProblem CheckNewDictionaryName(const ProgramState& state, std::wstring_view name);

/// Makes an empty dictionary and the one that additions go to, also after a restart; returns its
/// file name. Errors: the name is none, or the file cannot be made. An existing file keeps its
/// words.
Result<std::wstring> CreateCustomDictionary(const ProgramState& state, Settings& settings,
                                            std::wstring_view name);

/// Deletes the file of a dictionary. Errors: the name is none, the file is read-only or in use.
Result<void> DeleteCustomDictionary(const ProgramState& state, std::wstring_view name);

/// Makes exactly these dictionaries the active ones, here and in the settings file; none of them
/// stands for CUSTOM.DIC alone, to which additions go then. False when the file could not be
/// written.
bool StoreActiveDictionaries(const ProgramState& state, Settings& settings,
                             std::span<const std::wstring> names);

}  // namespace wordhawk
