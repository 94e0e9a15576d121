#pragma once

#include "platform/files.h"
#include "platform/text.h"

namespace wordhawk {

/// The file beside a language's dictionary files that tells in which code page their bytes are: the
/// page's number in decimal.
inline constexpr const char* kCodePageFile = "codepage.txt";

/// The page that the dictionary files in `folder` are written in; null when the folder does not
/// tell, or tells a number that is no single-byte Windows page.
const AnsiCodePage* CodePageOfFolder(const Path& folder);

/// Notes the page of the dictionary files in `folder`. Errors: the file cannot be written.
Result<void> WriteCodePageOfFolder(const Path& folder, const AnsiCodePage& page);

}  // namespace wordhawk
