#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// `text`, whose line breaks are single CRs, with the line ends of `original`: each break its own
/// while there are as many as before, else all of them the kind that `original` uses most. An
/// original without line breaks gives CR LF.
std::wstring WithLineEndsOf(std::wstring_view original, std::wstring_view text);

/// The bytes of an RTF document that travelled as a text: what is not ASCII becomes \u control
/// words, so that no character depends on a code page.
std::string RtfBytesOf(std::wstring_view text);
/// The other way: a byte beyond ASCII becomes a \' control word.
std::wstring TextOfRtfBytes(std::string_view rtf);

}  // namespace wordhawk
