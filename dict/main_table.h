#pragma once

#include "app/program_state.h"
#include "dict/word_table.h"
#include "platform/file_stamps.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace wordhawk {

/// The words of all files of a main dictionary in one table, and how the files were when it was
/// made.
struct MainTable {
    struct File {
        std::wstring name;
        FileStamp stamp;
        bool has_words;
    };

    WordTable words;
    /// How many of the table's words are the dictionary's: those before all others.
    std::uint32_t count = 0;
    /// Ascending by name.
    std::vector<File> files;
    /// What the table stands in.
    std::shared_ptr<const void> memory;

    /// Whether a word that fits a table is in this file exactly when it is in the table: the file
    /// is as it was then.
    bool SpeaksFor(const Path& file) const;

    bool Holds(std::string_view word, std::uint32_t hash) const {
        const auto number = words.Find(word, hash);
        return number && *number < count;
    }
};

/// Gives the table of the main dictionary in force; none where there is none that serves.
using MainTableSource = std::function<std::optional<MainTable>(const ProgramState&)>;

}  // namespace wordhawk
