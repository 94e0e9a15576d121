#pragma once

#include "platform/files.h"

#include <string_view>

namespace wordhawk {

/// The file of a shipped pack that lists its files with their checksums: which of them a user
/// changed, and whether another pack is installed. Empty in a folder that its owner built.
inline constexpr std::string_view kPackListFile = "_pack_.lst";

/// Whether a folder's files are a pack of ours or made by the owner of the folder.
enum class PackOrigin { Shipped, Own };

/// Writes the list of the dictionary files in `folder`. Errors: it cannot be written.
Result<void> WritePackList(const Path& folder, PackOrigin origin);

/// Whether `installed` holds another pack than `shipped` does: one that an earlier version of the
/// program put there, with or without such a list. False where its owner built it.
bool IsOtherPack(const Path& installed, const Path& shipped);

/// Gives the list of a pack that was just copied the time of the one that it is a copy of, by which
/// IsOtherPack knows them to be the same without reading them.
void NoteSamePack(const Path& installed, const Path& shipped);

/// Brings the files in `installed` up to those of the pack `shipped`. A file that was changed since
/// it was installed keeps all its words beside the new ones; so does every file of a pack that came
/// without a list, but for the pieces that the new pack has in a list of their own. The list comes
/// last: an update that was cut off begins again. Errors: a file cannot be read or written.
Result<void> UpdatePack(const Path& installed, const Path& shipped);

}  // namespace wordhawk
