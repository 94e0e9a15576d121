#pragma once

#include "app/program_state.h"
#include "dict/main_table.h"
#include "engine/suggest/word_image.h"
#include "platform/mapped_file.h"

#include <optional>

namespace wordhawk {

/// Where the image of the language in force is kept.
Path ImageFileOf(const ProgramState& state);

/// An image in its file.
struct ImageFile {
    /// None when it is missing or no image for this page.
    static std::optional<ImageFile> Open(const Path& path, int code_page,
                                         WordImage::Use use = WordImage::Use::Search);

    MappedFile mapped;
    WordImage image;
};

/// The words of the main dictionary in force, from its image as it is now; none when there is no
/// image, or when it has files that only some systems would find.
std::optional<MainTable> MainTableFromImage(const ProgramState& state);

}  // namespace wordhawk
