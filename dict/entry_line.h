#pragma once

#include "platform/result.h"
#include "platform/text.h"

#include <string>
#include <string_view>

namespace wordhawk {

/// "word,key\r\n" in the bytes of the page; `word` is lower-cased first.
std::string EntryLine(std::wstring_view word, const AnsiCodePage& page);

/// The same for a word that is to be stored. Errors: it is empty, holds a comma, a line break or
/// another control character, so that it could not be read back, or the page cannot hold it.
Result<std::string> CheckedEntryLine(std::wstring_view word, const AnsiCodePage& page);

/// Whether the page has every character of the word in lower case.
bool PageHolds(std::wstring_view word, const AnsiCodePage& page);

}  // namespace wordhawk
