#pragma once

#include "app/progress.h"
#include "dict/dictionary_store.h"

#include <span>

namespace wordhawk {

/// Where an addition goes.
enum class AddTarget : std::int16_t { Main = 0, ActiveCustom = 1, ExplicitFile = 2 };

/// Adds one word, lower-cased, with its key, keeping the file sorted. `path` is used by
/// ExplicitFile only; when empty it becomes CUSTOM.DIC and the caller sees the new path. A word
/// already there (below the first line) leaves the file untouched. The custom dictionaries are
/// reloaded; the main cache is not (call DictionaryStore::ReloadFile, as commands do). Errors: the
/// file could not be read, locked or replaced; it is then as it was.
Result<void> AddWordToDictionary(DictionaryStore& store, std::wstring_view word, AddTarget target,
                                 Path& path);

/// Adds every word of a list; with ten or more it shows progress. Stops early when the progress or
/// `state.StopFlag` asks, keeping what was added.
Result<void> AddWordsToDictionary(DictionaryStore& store, std::span<const std::wstring> words,
                                  AddTarget target, Path& path, Progress& progress);

/// What came of removing a word.
struct Removal {
    /// The file that it was removed from; empty when none was changed.
    Path file;
    /// Files that could not be read and were passed over, or the one that has the word and could
    /// not be written.
    std::vector<Error> failures;
};

/// Removes the word's entry from the first dictionary that has it: main, then custom in order.
Removal RemoveWordFromDictionaries(DictionaryStore& store, std::wstring_view word);

/// Removes the word's entry from one custom file (CUSTOM.DIC when `path` is empty) and reloads the
/// custom dictionaries. Returns whether there was one.
Result<bool> RemoveWordFromCustomDictionary(DictionaryStore& store, std::wstring_view word,
                                            const Path& path);

/// The file that an addition of `word` to `target` writes.
Path AdditionFile(DictionaryStore& store, std::wstring_view word, AddTarget target, Path& path);

}  // namespace wordhawk
