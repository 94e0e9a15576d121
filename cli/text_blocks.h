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

/// A stretch of a document, as far as it must be read in order; Decode makes its text of it, which
/// may happen in any thread.
struct RawBlock {
    std::string bytes;  // of a plain text
    std::wstring text;  // of rich text, whose bytes mean nothing by themselves
    TextEncoding encoding = TextEncoding::Utf8;

    bool Empty() const { return bytes.empty() && text.empty(); }
    /// Whether the bytes are the text as it is.
    bool IsAscii() const;
    /// The text; the block is used up.
    std::wstring Decode(const AnsiCodePage& page);
};

/// A document's text in blocks that end behind a space or a line break, so that no word and no
/// address is cut; only a run without either of more than four million bytes is. Memory does
/// not grow with the document.
///
/// The encoding is found as DetectEncoding finds it. A text without a mark is looked ahead into
/// from its first character beyond ASCII, a pipe for up to 16 MB; that part decides.
class TextBlocks {
  public:
    TextBlocks(ByteSource source, DocumentKind kind) : source_(std::move(source)), kind_(kind) {}

    /// The next block; empty at the end.
    Result<RawBlock> Next();

    /// How much of the document was read, 0 to 100, or -1 when its size is not known.
    int PercentRead() const;

    /// Bytes of the document when that is known beforehand, else 0.
    std::uint64_t Size() const { return source_.Size(); }

  private:
    Result<void> Start();
    Result<void> ReadMore(std::size_t size);
    Result<void> Decide();
    Result<void> DecideFromFile();
    Result<void> DecideFromPipe();
    Result<RawBlock> NextOfRichText();
    Result<RawBlock> NextOfPlainText();
    std::size_t BehindLastBlank(std::size_t from, std::size_t end) const;
    std::size_t CompleteCharacters(std::size_t end) const;

    ByteSource source_;
    DocumentKind kind_;
    TextEncoding encoding_ = TextEncoding::Utf8;
    std::unique_ptr<RtfTextReader> rich_text_;  // none: plain text
    std::wstring rest_;                         // of rich text, not yet handed out
    bool started_ = false;
    bool decided_ = false;
    std::string bytes_;  // read; what stands before bytes_at_ was handed out
    std::size_t bytes_at_ = 0;
    std::uint64_t bytes_read_ = 0;
};

/// How many of the bytes are left when a UTF-8 sequence that is not complete at the end is cut off.
std::size_t CompleteUtf8Length(std::string_view bytes);

}  // namespace wordhawk
