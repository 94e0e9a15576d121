#pragma once

#include "platform/text.h"

namespace wordhawk {

/// The single-byte page by which the bytes of a profile file without a mark are taken apart and put
/// together again, without loss whatever they are; `wanted` where no system decides it.
const AnsiCodePage& ProfilePage(const AnsiCodePage* wanted);

/// What `value` is to be taken for in a file of that page, so that the system reads it as `value`:
/// another text only on a Windows whose own page is none of single bytes.
std::wstring ProfileForm(std::wstring_view value, const AnsiCodePage& page);

/// Whether a file of that page can keep `text` without loss.
bool ProfilePageHolds(std::wstring_view text, const AnsiCodePage& page);

}  // namespace wordhawk
