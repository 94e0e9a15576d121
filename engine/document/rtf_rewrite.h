#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// Rich text as it may go into the system's rich text box.
struct RewrittenRtf {
    std::string rtf;
    /// Something of the document was left out or made plain: pictures, objects, fields, drawings,
    /// notes, page headers, tables, lists beyond bullets and numbers, text marked as deleted.
    bool dropped = false;
};

/// What becomes of bullets and numbers: formats of their paragraphs, or characters of the text.
enum class RtfLists { Kept, AsText };

/// Writes an RTF document anew from what is let through: text, fonts, colours, character and
/// paragraph formats, bullets and numbers. The result nests three groups deep at most, its numbers
/// are in range, it has no raw data and no destination but those named, whatever `rtf` is; time and
/// size are linear in that of `rtf`. Cells of a table are parted by tabs, its rows by paragraphs; a
/// field becomes its result. `default_face` (UTF-16) is the font of text that has none.
RewrittenRtf RewriteRtf(std::string_view rtf, std::wstring_view default_face,
                        RtfLists lists = RtfLists::Kept);

}  // namespace wordhawk
