#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// The bytes of an RTF document that travelled as a text: what is not ASCII becomes \u control
/// words, so that no character depends on a code page.
std::string RtfBytesOf(std::wstring_view text);
/// The other way: a byte beyond ASCII becomes a \' control word.
std::wstring TextOfRtfBytes(std::string_view rtf);

}  // namespace wordhawk
