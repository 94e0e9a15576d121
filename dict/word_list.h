#pragma once

#include "platform/text.h"

#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// The lines of a list that a person or another program wrote: text in UTF-16 with a mark, in UTF-8
/// with a mark or well-formed, else in `page`; lines end in CR LF or LF. Nothing is trimmed.
std::vector<std::wstring> LinesOfList(std::string_view bytes, const AnsiCodePage& page);

/// The entries of a word list that another program made, one for each of its lines. A list of the
/// form that hunspell reads loses its first line, the number of words, and of each line the flags
/// behind the slash and the fields behind a tab. Nothing is trimmed.
std::vector<std::wstring> EntriesOfWordList(std::string_view bytes, const AnsiCodePage& page);

}  // namespace wordhawk
