#pragma once

#include <string_view>

/// What RTF control words mean to a reader who wants the text alone.
namespace wordhawk {

/// Destinations whose content is no text of the document. Those that writers mark with \* need no
/// entry; these also come without the mark.
bool IsTextlessDestination(std::string_view word);

/// Destinations with text of their own, apart from the paragraph that they stand in.
bool IsSeparateDestination(std::string_view word);

/// The character that a control word stands for; NUL when it is none.
wchar_t CharacterOfWord(std::string_view word);

/// Code page of a font's character set; `document_page` when the number is not known.
int PageOfCharset(int charset, int document_page);

}  // namespace wordhawk
