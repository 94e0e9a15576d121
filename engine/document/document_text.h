#pragma once

#include "engine/document/line_ends.h"
#include "platform/files.h"
#include "platform/text.h"

#include <optional>
#include <string>
#include <string_view>

namespace wordhawk {

enum class TextEncoding { Ansi, Utf8, Utf8WithMark, Utf16LittleEndian, Utf16BigEndian };

/// A plain-text document as read, with what is needed to save it back as it came.
struct DocumentText {
    std::wstring text;
    TextEncoding encoding = TextEncoding::Utf8;
    /// The kind that the document uses most; CR LF for a text without line breaks.
    LineEnds line_ends = LineEnds::CrLf;
};

/// The bytes that mark a document in `encoding`; empty for those without.
std::string_view EncodingMark(TextEncoding encoding);

/// The encoding that the first bytes of a document are the mark of, if they are one.
std::optional<TextEncoding> MarkedEncoding(std::string_view bytes);

/// Encoding of a document: by its mark, else UTF-8 when well-formed, else ANSI.
TextEncoding DetectEncoding(std::string_view bytes);

/// Appends the text of `bytes`, which hold no mark and end between two characters.
void AppendDecoded(std::string_view bytes, TextEncoding encoding, const AnsiCodePage& page,
                   std::wstring& out);

DocumentText DecodeDocument(std::string_view bytes, const AnsiCodePage& page);

/// The bytes of `text` in the document's encoding and line ends, whatever line ends `text` has.
/// A character that an ANSI document cannot hold turns the result into UTF-8 with mark, so that
/// nothing is lost.
std::string EncodeDocument(std::wstring_view text, TextEncoding encoding, LineEnds line_ends,
                           const AnsiCodePage& page);
/// The same with the line ends that `text` has.
std::string EncodeText(std::wstring_view text, TextEncoding encoding, const AnsiCodePage& page);

}  // namespace wordhawk
