#include "engine/document/document_text.h"

#include <array>
#include <cstdint>

namespace wordhawk {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";
constexpr wchar_t kReplacement = 0xFFFD;

enum class ByteOrder { LowFirst, HighFirst };

void AppendFromUtf16(std::string_view bytes, ByteOrder order, std::wstring& out) {
    out.reserve(out.size() + bytes.size() / 2 + 1);
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    std::size_t i = 0;
    for (; i + 1 < bytes.size(); i += 2) {
        const unsigned low = byte(order == ByteOrder::LowFirst ? i : i + 1);
        const unsigned high = byte(order == ByteOrder::LowFirst ? i + 1 : i);
        out.push_back(static_cast<wchar_t>(high << 8 | low));
    }
    if (i < bytes.size()) out.push_back(kReplacement);  // half a unit at the end
}

std::string EncodeUtf16(std::wstring_view text, ByteOrder order) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (const wchar_t c : text) {
        const auto unit = static_cast<std::uint16_t>(c);
        const char low = static_cast<char>(unit & 0xFF);
        const char high = static_cast<char>(unit >> 8);
        bytes.push_back(order == ByteOrder::LowFirst ? low : high);
        bytes.push_back(order == ByteOrder::LowFirst ? high : low);
    }
    return bytes;
}

bool FitsPage(std::wstring_view text, const AnsiCodePage& page) {
    for (const wchar_t c : text) {
        if (page.ToByteOrNone(c) < 0) return false;
    }
    return true;
}

}  // namespace

std::string_view EncodingMark(TextEncoding encoding) {
    switch (encoding) {
        case TextEncoding::Utf8WithMark: return kUtf8Mark;
        case TextEncoding::Utf16LittleEndian: return kLittleEndianMark;
        case TextEncoding::Utf16BigEndian: return kBigEndianMark;
        case TextEncoding::Ansi:
        case TextEncoding::Utf8: break;
    }
    return {};
}

std::optional<TextEncoding> MarkedEncoding(std::string_view bytes) {
    constexpr std::array kMarked = {TextEncoding::Utf8WithMark, TextEncoding::Utf16LittleEndian,
                                    TextEncoding::Utf16BigEndian};
    for (const TextEncoding encoding : kMarked) {
        if (bytes.starts_with(EncodingMark(encoding))) return encoding;
    }
    return std::nullopt;
}

TextEncoding DetectEncoding(std::string_view bytes) {
    if (const auto marked = MarkedEncoding(bytes)) return *marked;
    return IsUtf8(bytes) ? TextEncoding::Utf8 : TextEncoding::Ansi;
}

void AppendDecoded(std::string_view bytes, TextEncoding encoding, const AnsiCodePage& page,
                   std::wstring& out) {
    switch (encoding) {
        case TextEncoding::Ansi: out += page.Decode(bytes); break;
        case TextEncoding::Utf8:
        case TextEncoding::Utf8WithMark: AppendFromUtf8(bytes, out); break;
        case TextEncoding::Utf16LittleEndian:
            AppendFromUtf16(bytes, ByteOrder::LowFirst, out);
            break;
        case TextEncoding::Utf16BigEndian: AppendFromUtf16(bytes, ByteOrder::HighFirst, out); break;
    }
}

DocumentText DecodeDocument(std::string_view bytes, const AnsiCodePage& page) {
    DocumentText document;
    document.encoding = DetectEncoding(bytes);
    bytes.remove_prefix(EncodingMark(document.encoding).size());
    AppendDecoded(bytes, document.encoding, page, document.text);
    document.line_ends = LineEndMemory(document.text).MostUsed();
    return document;
}

std::string EncodeDocument(std::wstring_view text, TextEncoding encoding, LineEnds line_ends,
                           const AnsiCodePage& page) {
    return EncodeText(WithLineEnds(text, line_ends), encoding, page);
}

std::string EncodeText(std::wstring_view text, TextEncoding encoding, const AnsiCodePage& page) {
    if (encoding == TextEncoding::Ansi && !FitsPage(text, page)) {
        encoding = TextEncoding::Utf8WithMark;
    }
    std::string bytes(EncodingMark(encoding));
    switch (encoding) {
        case TextEncoding::Ansi: bytes += page.Encode(text); break;
        case TextEncoding::Utf8:
        case TextEncoding::Utf8WithMark: bytes += ToUtf8(text); break;
        case TextEncoding::Utf16LittleEndian:
            bytes += EncodeUtf16(text, ByteOrder::LowFirst);
            break;
        case TextEncoding::Utf16BigEndian: bytes += EncodeUtf16(text, ByteOrder::HighFirst); break;
    }
    return bytes;
}

}  // namespace wordhawk
