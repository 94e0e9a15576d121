#include "cli/text_blocks.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::size_t kReadBytes = std::size_t{128} << 10;
constexpr std::size_t kDecodeBytes = std::size_t{128} << 10;
constexpr std::size_t kLookAheadBytes = std::size_t{16} << 20;
constexpr std::size_t kLongestRun = std::size_t{4} << 20;

bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<signed char>(c) >= 0; });
}

}  // namespace

std::size_t CompleteUtf8Length(std::string_view bytes) {
    const std::size_t size = bytes.size();
    for (std::size_t back = 1; back <= 3 && back <= size; ++back) {
        const auto byte = static_cast<unsigned char>(bytes[size - back]);
        if (byte < 0x80) break;
        if (byte < 0xC0) continue;  // the sequence began earlier
        const std::size_t needed = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
        return needed > back ? size - back : size;
    }
    return size;
}

Result<void> TextBlocks::ReadMore(std::size_t size) {
    bytes_.erase(0, bytes_at_);
    bytes_at_ = 0;
    const std::size_t before = bytes_.size();
    auto read = source_.Read(size, bytes_);
    bytes_read_ += bytes_.size() - before;
    return read;
}

Result<void> TextBlocks::Start() {
    started_ = true;
    if (auto read = ReadMore(kReadBytes); !read) return read;
    if (kind_ == DocumentKind::RichText || LooksLikeRtf(bytes_)) {
        rich_text_ = std::make_unique<RtfTextReader>();
        return {};
    }
    if (const auto marked = MarkedEncoding(bytes_)) {
        encoding_ = *marked;
        bytes_at_ = EncodingMark(encoding_).size();
        decided_ = true;
    } else if (source_.AtEnd()) {
        encoding_ = DetectEncoding(bytes_);
        decided_ = true;
    } else if (source_.Rewind()) {
        return DecideFromFile();
    }
    return {};
}

/// Looks through the whole file once and goes back to its start.
Result<void> TextBlocks::DecideFromFile() {
    decided_ = true;
    encoding_ = TextEncoding::Utf8;
    bytes_.clear();
    while (!source_.AtEnd()) {
        if (auto read = ReadMore(kReadBytes); !read) return read;
        const std::size_t complete = source_.AtEnd() ? bytes_.size() : CompleteUtf8Length(bytes_);
        if (!IsUtf8(std::string_view(bytes_).substr(0, complete))) {
            encoding_ = TextEncoding::Ansi;
            break;
        }
        bytes_at_ = complete;
    }
    bytes_.clear();
    bytes_at_ = 0;
    bytes_read_ = 0;
    if (!source_.Rewind()) return tl::unexpected(Error{L"reading failed", {}});
    return {};
}

/// Called with fresh bytes in hand: ASCII needs no decision, anything else is looked ahead from.
Result<void> TextBlocks::DecideFromPipe() {
    if (IsAscii(std::string_view(bytes_).substr(bytes_at_))) return {};
    decided_ = true;
    if (!source_.AtEnd()) {
        if (auto read = ReadMore(kLookAheadBytes); !read) return read;
    }
    const std::string_view ahead = std::string_view(bytes_).substr(bytes_at_);
    const std::size_t complete = source_.AtEnd() ? ahead.size() : CompleteUtf8Length(ahead);
    encoding_ = IsUtf8(ahead.substr(0, complete)) ? TextEncoding::Utf8 : TextEncoding::Ansi;
    return {};
}

Result<void> TextBlocks::AppendRichText() {
    if (bytes_at_ == bytes_.size()) {
        if (auto read = ReadMore(kReadBytes); !read) return read;
    }
    rich_text_->Feed(std::string_view(bytes_).substr(bytes_at_), text_);
    bytes_at_ = bytes_.size();
    if (source_.AtEnd()) rich_text_->Finish(text_);
    return {};
}

/// End of the bytes that may be decoded now: whole characters, a block's worth.
std::size_t TextBlocks::CompleteBytes() const {
    const std::size_t end = std::min(bytes_.size(), bytes_at_ + kDecodeBytes);
    if (end == bytes_.size() && source_.AtEnd()) return end;
    const std::string_view part = std::string_view(bytes_).substr(bytes_at_, end - bytes_at_);
    switch (encoding_) {
        case TextEncoding::Ansi: return end;
        case TextEncoding::Utf8:
        case TextEncoding::Utf8WithMark: return bytes_at_ + CompleteUtf8Length(part);
        case TextEncoding::Utf16LittleEndian:
        case TextEncoding::Utf16BigEndian: return end - part.size() % 2;
    }
    return end;
}

Result<void> TextBlocks::AppendPlainText() {
    if (bytes_.size() - bytes_at_ < kDecodeBytes && !source_.AtEnd()) {
        if (auto read = ReadMore(kReadBytes); !read) return read;
    }
    if (!decided_) {
        if (auto decision = DecideFromPipe(); !decision) return decision;
    }
    const std::size_t end = CompleteBytes();
    AppendDecoded(std::string_view(bytes_).substr(bytes_at_, end - bytes_at_), encoding_, page_,
                  text_);
    bytes_at_ = end;
    return {};
}

bool TextBlocks::AtEnd() const {
    if (rich_text_ && rich_text_->AtEnd()) return true;
    return bytes_at_ == bytes_.size() && source_.AtEnd();
}

Result<std::wstring_view> TextBlocks::Next() {
    if (!started_) {
        if (auto start = Start(); !start) return tl::unexpected(start.error());
    }
    text_.erase(0, text_at_);
    text_at_ = 0;
    while (!AtEnd()) {
        const std::size_t from = text_.size();
        const auto appended = rich_text_ ? AppendRichText() : AppendPlainText();
        if (!appended) return tl::unexpected(appended.error());
        if (AtEnd()) break;
        const std::size_t blank = std::wstring_view(text_).substr(from).find_last_of(L" \n\r");
        if (blank != std::wstring_view::npos) {
            text_at_ = from + blank + 1;
            return std::wstring_view(text_).substr(0, text_at_);
        }
        if (text_.size() >= kLongestRun) break;
    }
    text_at_ = text_.size();
    return std::wstring_view(text_);
}

int TextBlocks::PercentRead() const {
    if (source_.Size() == 0) return -1;
    return static_cast<int>(std::min<std::uint64_t>(100, bytes_read_ * 100 / source_.Size()));
}

}  // namespace wordhawk
