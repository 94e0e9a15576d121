#pragma once

#include "platform/files.h"

namespace wordhawk {

/// Whether a replaced file must have reached the disk when the call returns. Without it a crash of
/// the program is still harmless, but not a power cut; for files that can be made again.
enum class Durability { Flushed, LeftToTheSystem };

/// Replaces (or creates) the file at `path` so that any reader, and any crash or power cut, sees
/// either the old or the new content whole: writes a temporary file beside it, flushes it to the
/// disk and renames it over. A file that is marked read-only is refused. On an error the old file
/// is untouched and the temporary one is gone.
Result<void> ReplaceFileContents(const Path& path, std::string_view bytes,
                                 Durability durability = Durability::Flushed);

/// Deletes the temporary files that killed programs left in `folder`, but none that a living one is
/// writing. Called under the folder's lock.
void SweepTemporaries(const Path& folder);

}  // namespace wordhawk
