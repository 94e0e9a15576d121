#pragma once

#include "cli/byte_source.h"
#include "engine/document/document_text.h"
#include "engine/document/rtf_text.h"
#include "platform/text.h"

#include <memory>
#include <string>
#include <string_view>

namespace wordhawk {

enum class DocumentKind { ByContent, RichText };

/// A document's text in blocks that end behind a space or a line break, so that no word and no
/// address is cut; only a run without either of more than four million characters is. Memory does
/// not grow with the document.
///
/// The encoding is found as DetectEncoding finds it. A pipe without a mark is looked ahead into
/// from its first character beyond ASCII for up to 16 MB; that part decides.
class TextBlocks {
  public:
    TextBlocks(ByteSource source, DocumentKind kind, const AnsiCodePage& page)
        : source_(std::move(source)), kind_(kind), page_(page) {}

    /// The next block, valid until the next call; empty at the end.
    Result<std::wstring_view> Next();

    /// How much of the document was read, 0 to 100, or -1 when its size is not known.
    int PercentRead() const;

  private:
    Result<void> Start();
    Result<void> ReadMore(std::size_t size);
    Result<void> DecideFromFile();
    Result<void> DecideFromPipe();
    Result<void> AppendRichText();
    Result<void> AppendPlainText();
    /// Whether all of the document is in text_.
    bool AtEnd() const;
    std::size_t CompleteBytes() const;

    ByteSource source_;
    DocumentKind kind_;
    const AnsiCodePage& page_;
    TextEncoding encoding_ = TextEncoding::Utf8;
    std::unique_ptr<RtfTextReader> rich_text_;  // none: plain text
    bool started_ = false;
    bool decided_ = false;
    std::string bytes_;  // read, not yet decoded from bytes_at_ on
    std::size_t bytes_at_ = 0;
    std::wstring text_;  // decoded; what stands before text_at_ was handed out
    std::size_t text_at_ = 0;
    std::uint64_t bytes_read_ = 0;
};

/// How many of the bytes are left when a UTF-8 sequence that is not complete at the end is cut off.
std::size_t CompleteUtf8Length(std::string_view bytes);

}  // namespace wordhawk
