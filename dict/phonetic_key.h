#pragma once

#include "platform/text.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace wordhawk {

/// The number stored beside each dictionary word: the ANSI code of its upper-cased first character,
/// then sound classes of the rest, cut or filled to five digits. 0 for an empty word.
std::int32_t GetPhoneticKey(std::wstring_view word, const AnsiCodePage& page);

/// The same for a word that is already bytes of `page`.
std::int32_t GetPhoneticKeyOfBytes(std::string_view word, const AnsiCodePage& page);

/// Name (no folder) of the main dictionary file that holds words beginning like `word`, which the
/// caller has lower-cased: two letters and "_.dic", "_noncase_.dic" or "_dbcs_.dic".
std::wstring GetDictionaryFileName(std::wstring_view word, const AnsiCodePage& page);

/// Whether `c` has no single-byte code at all: above 255 and not in the page. Words that begin with
/// such a character are kept apart.
bool IsOutsideSingleBytes(wchar_t c, const AnsiCodePage& page);

/// Whether a single-byte code counts as a letter in dictionary file names.
bool IsFileNameLetter(unsigned code);

}  // namespace wordhawk
