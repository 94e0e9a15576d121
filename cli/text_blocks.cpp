#include "cli/text_blocks.h"

#include <algorithm>
#include <utility>

namespace wordhawk {
namespace {

constexpr std::size_t kReadBytes = std::size_t{128} << 10;
constexpr std::size_t kLookAheadBytes = std::size_t{16} << 20;
constexpr std::size_t kLongestRun = std::size_t{4} << 20;

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
    }
    return {};
}

/// Called with fresh bytes in hand: ASCII needs no decision, anything else is looked ahead from.
Result<void> TextBlocks::Decide() {
    if (IsAscii(std::string_view(bytes_).substr(bytes_at_))) return {};
    decided_ = true;
    return source_.Mark() ? DecideFromFile() : DecideFromPipe();
}

/// Looks through the rest of the file once and goes back to where it was.
Result<void> TextBlocks::DecideFromFile() {
    encoding_ = TextEncoding::Utf8;
    const std::string unread = bytes_.substr(bytes_at_);
    const std::uint64_t bytes_read = bytes_read_;
    while (true) {
        const std::string_view ahead = std::string_view(bytes_).substr(bytes_at_);
        const std::size_t complete = source_.AtEnd() ? ahead.size() : CompleteUtf8Length(ahead);
        if (!IsUtf8(ahead.substr(0, complete))) encoding_ = TextEncoding::Ansi;
        if (source_.AtEnd() || encoding_ == TextEncoding::Ansi) break;
        bytes_at_ += complete;
        if (auto read = ReadMore(kReadBytes); !read) return read;
    }
    bytes_ = unread;
    bytes_at_ = 0;
    if (bytes_read_ == bytes_read) return {};
    bytes_read_ = bytes_read;
    if (!source_.GoBack()) return tl::unexpected(Error{L"reading failed", {}});
    return {};
}

Result<void> TextBlocks::DecideFromPipe() {
    if (!source_.AtEnd()) {
        if (auto read = ReadMore(kLookAheadBytes); !read) return read;
    }
    const std::string_view ahead = std::string_view(bytes_).substr(bytes_at_);
    const std::size_t complete = source_.AtEnd() ? ahead.size() : CompleteUtf8Length(ahead);
    encoding_ = IsUtf8(ahead.substr(0, complete)) ? TextEncoding::Utf8 : TextEncoding::Ansi;
    return {};
}

Result<RawBlock> TextBlocks::NextOfRichText() {
    RawBlock block;
    block.text = std::exchange(rest_, {});
    while (!rich_text_->AtEnd() && !(bytes_at_ == bytes_.size() && source_.AtEnd())) {
        const std::size_t from = block.text.size();
        if (bytes_at_ == bytes_.size()) {
            if (auto read = ReadMore(kReadBytes); !read) return tl::unexpected(read.error());
        }
        rich_text_->Feed(std::string_view(bytes_).substr(bytes_at_), block.text);
        bytes_at_ = bytes_.size();
        if (source_.AtEnd()) {
            rich_text_->Finish(block.text);
            break;
        }
        const std::size_t blank = std::wstring_view(block.text).substr(from).find_last_of(L" \n\r");
        if (blank != std::wstring_view::npos) {
            rest_ = block.text.substr(from + blank + 1);
            block.text.resize(from + blank + 1);
            break;
        }
        if (block.text.size() >= kLongestRun) break;
    }
    return block;
}

/// Behind the last space or line break between two places in bytes_, npos when there is none.
std::size_t TextBlocks::BehindLastBlank(std::size_t from, std::size_t end) const {
    const bool big = encoding_ == TextEncoding::Utf16BigEndian;
    if (!big && encoding_ != TextEncoding::Utf16LittleEndian) {
        const std::size_t blank =
            std::string_view(bytes_).substr(from, end - from).find_last_of(" \n\r");
        return blank == std::string_view::npos ? blank : from + blank + 1;
    }
    for (std::size_t behind = end - (end - from) % 2; behind > from; behind -= 2) {
        const char low = bytes_[behind - (big ? 1 : 2)];
        const char high = bytes_[behind - (big ? 2 : 1)];
        if (high == 0 && (low == ' ' || low == '\n' || low == '\r')) return behind;
    }
    return std::string::npos;
}

/// Where the last character that is whole before `end` ends.
std::size_t TextBlocks::CompleteCharacters(std::size_t end) const {
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

Result<RawBlock> TextBlocks::NextOfPlainText() {
    std::size_t searched = 0;  // bytes behind bytes_at_
    for (std::size_t most = kReadBytes;; most += kReadBytes) {
        if (bytes_.size() - bytes_at_ < most && !source_.AtEnd()) {
            if (auto read = ReadMore(kReadBytes); !read) return tl::unexpected(read.error());
        }
        if (!decided_) {
            if (auto decision = Decide(); !decision) return tl::unexpected(decision.error());
        }
        std::size_t end = std::min(bytes_.size(), bytes_at_ + most);
        if (end < bytes_.size() || !source_.AtEnd()) {
            const std::size_t blank = BehindLastBlank(bytes_at_ + searched, end);
            if (blank == std::string::npos && most < kLongestRun) {
                searched = (end - bytes_at_) & ~std::size_t{1};  // units of two bytes stay whole
                continue;
            }
            end = blank == std::string::npos ? CompleteCharacters(end) : blank;
        }
        RawBlock block;
        block.encoding = encoding_;
        block.bytes = bytes_.substr(bytes_at_, end - bytes_at_);
        bytes_at_ = end;
        return block;
    }
}

Result<RawBlock> TextBlocks::Next() {
    if (!started_) {
        if (auto start = Start(); !start) return tl::unexpected(start.error());
    }
    return rich_text_ ? NextOfRichText() : NextOfPlainText();
}

bool RawBlock::IsAscii() const {
    const bool wide =
        encoding == TextEncoding::Utf16LittleEndian || encoding == TextEncoding::Utf16BigEndian;
    return text.empty() && !wide && wordhawk::IsAscii(bytes);
}

std::wstring RawBlock::Decode(const AnsiCodePage& page) {
    if (!bytes.empty()) AppendDecoded(bytes, encoding, page, text);
    return std::move(text);
}

int TextBlocks::PercentRead() const {
    if (source_.Size() == 0) return -1;
    return static_cast<int>(std::min<std::uint64_t>(100, bytes_read_ * 100 / source_.Size()));
}

}  // namespace wordhawk
