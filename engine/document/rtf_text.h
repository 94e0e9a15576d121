#pragma once

#include <memory>
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

/// RtfToText for a document that comes in pieces, cut anywhere. Keeps no more of it than its groups
/// and fonts need.
class RtfTextReader {
  public:
    RtfTextReader();
    ~RtfTextReader();
    RtfTextReader(const RtfTextReader&) = delete;
    RtfTextReader& operator=(const RtfTextReader&) = delete;

    /// Appends the text of the next piece to `text`; what may go on in the piece after it waits.
    void Feed(std::string_view piece, std::wstring& text);
    /// Appends what is left when there are no more pieces.
    void Finish(std::wstring& text);
    /// The document has ended, whatever follows.
    bool AtEnd() const;

  private:
    class Reader;
    std::unique_ptr<Reader> reader_;
    std::string waiting_;
    /// Lexing is not tried again before so much waits, so that a token without end costs no more
    /// than its length.
    std::size_t try_at_ = 0;
    std::size_t raw_left_ = 0;
};

}  // namespace wordhawk
