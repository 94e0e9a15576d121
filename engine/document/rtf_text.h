#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// Whether the bytes begin like an RTF document.
bool LooksLikeRtf(std::string_view bytes);

/// The visible text of an RTF document: paragraphs and line breaks as LF, tabs and special
/// characters as themselves, \'hh in the document's code page, \u with its skip count. Tables of
/// fonts, colours, styles, pictures, fields' instructions and every other destination without text
/// are passed over. Malformed input gives what can be read; nesting and sizes are bounded.
std::wstring RtfToText(std::string_view rtf);

}  // namespace wordhawk
