#pragma once

#include "platform/files.h"

#include <string_view>

namespace wordhawk {

// Dictionary files are kept sorted, but any program may have changed them. So these find an entry
// fast where a sorted file has it; that they do not find it tells nothing.

/// Whether "word," begins a line of `bytes`, looked for by halves.
bool FoundByHalves(std::string_view bytes, std::string_view word);

/// The same in a file, of which only a few small parts are read.
bool FoundByHalvesIn(const Path& file, std::string_view word);

}  // namespace wordhawk
