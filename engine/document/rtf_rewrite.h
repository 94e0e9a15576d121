#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// Rich text as it may go into the system's rich text box.
struct RewrittenRtf {
    std::string rtf;
    /// Something of the document was left out or made plain: pictures, objects, fields, drawings,
    /// notes, page headers, tables, lists, text marked as deleted.
    bool dropped = false;
};

/// Writes an RTF document anew from what is let through: text, fonts, colours, character and
/// paragraph formats. Bullets and numbers of lists become characters of the text, as Wine's rich
/// text box ends the process when a text around the marks of lists is edited. The result nests
/// three groups deep at most, its numbers are in range, it has no raw data and no destination but
/// those named, whatever `rtf` is; time and size are linear in that of `rtf`. Cells of a table are
/// parted by tabs, its rows by paragraphs; a field becomes its result. `default_face` (UTF-16) is
/// the font of text that has none.
RewrittenRtf RewriteRtf(std::string_view rtf, std::wstring_view default_face);

}  // namespace wordhawk
