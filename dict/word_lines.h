#pragma once

#include "platform/text.h"

#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// The words of a dictionary file, in its order: each line's text before its first comma, a line
/// without one as it is, none for an empty one.
std::vector<std::wstring> WordsOfLines(std::string_view bytes, const AnsiCodePage& page);

}  // namespace wordhawk
