#pragma once

#include "platform/files.h"

namespace wordhawk {

/// Replaces (or creates) the file at `path` so that any reader, and any crash or power cut, sees
/// either the old or the new content whole: writes a temporary file beside it, flushes it to the
/// disk and renames it over. A file that is marked read-only is refused. On an error the old file
/// is untouched and the temporary one is gone.
Result<void> ReplaceFileContents(const Path& path, std::string_view bytes);

}  // namespace wordhawk
