#pragma once

#include "platform/files.h"
#include "platform/text.h"

#include <string>
#include <string_view>

namespace wordhawk {

enum class TextEncoding { Ansi, Utf8, Utf8WithMark, Utf16LittleEndian, Utf16BigEndian };
enum class LineEnds { CrLf, Lf, Cr };

/// A plain-text document as read, with what is needed to save it back as it came.
struct DocumentText {
    std::wstring text;
    TextEncoding encoding = TextEncoding::Utf8;
    /// The kind that the document uses most; CR LF for a text without line breaks.
    LineEnds line_ends = LineEnds::CrLf;
};

/// Encoding of a document: by its mark, else UTF-8 when well-formed, else ANSI.
TextEncoding DetectEncoding(std::string_view bytes);

DocumentText DecodeDocument(std::string_view bytes, const AnsiCodePage& page);

/// The bytes of `text` in the document's encoding and line ends, whatever line ends `text` has.
/// A character that an ANSI document cannot hold turns the result into UTF-8 with mark, so that
/// nothing is lost.
std::string EncodeDocument(std::wstring_view text, TextEncoding encoding, LineEnds line_ends,
                           const AnsiCodePage& page);

}  // namespace wordhawk
