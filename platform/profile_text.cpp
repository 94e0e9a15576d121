#include "platform/profile_text.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::wstring_view kLineEnd = L"\r\n";

std::wstring_view TrimBlanks(std::wstring_view text) {
    constexpr std::wstring_view kBlanks = L" \t\v\f\x1A";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::wstring_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::wstring_view UpToNull(std::wstring_view text) { return text.substr(0, text.find(L'\0')); }

struct KeyAndValue {
    std::wstring_view key;
    std::optional<std::wstring_view> value;
};

KeyAndValue Split(std::wstring_view content) {
    const std::size_t equals = content.find(L'=');
    if (equals == std::wstring_view::npos) return {TrimBlanks(content), std::nullopt};
    return {TrimBlanks(content.substr(0, equals)), TrimBlanks(content.substr(equals + 1))};
}

std::wstring DecodeUtf16(std::string_view bytes) {
    std::wstring text(bytes.size() / 2, L'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto low = static_cast<unsigned char>(bytes[2 * i]);
        const auto high = static_cast<unsigned char>(bytes[2 * i + 1]);
        text[i] = static_cast<wchar_t>(low | (high << 8));
    }
    return text;
}

std::string EncodeUtf16(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size() * 2);
    for (const wchar_t c : text) {
        bytes += static_cast<char>(c & 0xFF);
        bytes += static_cast<char>((c >> 8) & 0xFF);
    }
    return bytes;
}

}  // namespace

struct ProfileText::Line {
    std::wstring_view content;  // without surrounding blanks
    std::size_t end;            // behind the last character
    std::size_t next;           // behind the line end

    bool IsHeader() const {
        return content.starts_with(L'[') && content.find(L']') != content.npos;
    }
    std::wstring_view HeaderName() const {
        return TrimBlanks(content.substr(1, content.rfind(L']') - 1));
    }
    bool IsEntry() const { return !content.empty() && content[0] != L';'; }
};

/// The lines of a section start at `begin`; a new one belongs at `append_at`.
struct ProfileText::SectionLines {
    bool found;
    std::size_t begin;
    std::size_t end;
    std::size_t append_at;
};

ProfileText::ProfileText(std::string_view bytes, const AnsiCodePage& page) : page_(page) {
    if (bytes.starts_with(kUtf16Mark)) {
        encoding_ = Encoding::Utf16;
        text_ = DecodeUtf16(bytes.substr(kUtf16Mark.size()));
        return;
    }
    if (bytes.starts_with(kUtf8Mark)) {
        encoding_ = Encoding::Utf8MarkThenAnsi;
        bytes.remove_prefix(kUtf8Mark.size());
    }
    text_ = page.Decode(bytes);
}

std::string ProfileText::Bytes() const {
    switch (encoding_) {
        case Encoding::Utf16: return std::string(kUtf16Mark) + EncodeUtf16(text_);
        case Encoding::Utf8MarkThenAnsi: return std::string(kUtf8Mark) + page_.Encode(text_);
        case Encoding::Ansi: break;
    }
    return page_.Encode(text_);
}

ProfileText::Line ProfileText::LineAt(std::size_t begin) const {
    const std::size_t end = std::min(text_.find_first_of(kLineEnd, begin), text_.size());
    std::size_t next = end;
    if (next < text_.size()) next += text_.compare(end, 2, kLineEnd) == 0 ? 2 : 1;
    return {TrimBlanks(std::wstring_view(text_).substr(begin, end - begin)), end, next};
}

ProfileText::SectionLines ProfileText::FindSection(std::wstring_view name) const {
    // Lines before the first header belong to the section without a name.
    bool inside = name.empty();
    SectionLines section{inside, 0, 0, 0};
    for (std::size_t at = 0; at < text_.size();) {
        const Line line = LineAt(at);
        if (line.IsHeader()) {
            if (inside) break;
            inside = EqualIgnoringCase(line.HeaderName(), name);
            if (inside) section = {true, line.next, line.next, line.next};
        } else if (inside) {
            section.end = line.next;
            if (!line.content.empty()) section.append_at = line.next;
        }
        at = line.next;
    }
    return section;
}

std::optional<std::wstring_view> ProfileText::Value(std::wstring_view section,
                                                    std::wstring_view key) const {
    return Values(section, {&key, 1}).front();
}

std::vector<std::optional<std::wstring_view>> ProfileText::Values(
    std::wstring_view section, std::span<const std::wstring_view> keys) const {
    std::vector<std::optional<std::wstring_view>> values(keys.size());
    std::vector<bool> found(keys.size());
    const SectionLines lines = FindSection(section);
    for (std::size_t at = lines.begin; at < lines.end;) {
        const Line line = LineAt(at);
        at = line.next;
        if (!line.IsEntry()) continue;
        const KeyAndValue entry = Split(line.content);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            if (found[i] || !EqualIgnoringCase(entry.key, keys[i])) continue;
            // The first line of a key counts, even one without a value.
            found[i] = true;
            if (entry.value) values[i] = UpToNull(*entry.value);
        }
    }
    return values;
}

std::vector<std::wstring> ProfileText::Entries(std::wstring_view section) const {
    std::vector<std::wstring> entries;
    const SectionLines lines = FindSection(section);
    for (std::size_t at = lines.begin; at < lines.end;) {
        const Line line = LineAt(at);
        if (line.IsEntry()) {
            const KeyAndValue entry = Split(line.content);
            std::wstring text(entry.key);
            if (entry.value) text.append(L"=").append(*entry.value);
            text.resize(UpToNull(text).size());
            entries.push_back(std::move(text));
        }
        at = line.next;
    }
    return entries;
}

void ProfileText::SetValue(std::wstring_view section, std::wstring_view key,
                           std::wstring_view value) {
    const SectionLines lines = FindSection(section);
    for (std::size_t at = lines.begin; at < lines.end;) {
        const Line line = LineAt(at);
        const KeyAndValue entry = Split(line.content);
        if (line.IsEntry() && EqualIgnoringCase(entry.key, key)) {
            std::wstring changed(entry.key);
            changed.append(L"=").append(value).append(kLineEnd);
            text_.replace(at, line.next - at, changed);
            return;
        }
        at = line.next;
    }

    std::wstring added;
    const std::size_t at = lines.found ? lines.append_at : text_.size();
    const bool after_open_line = at > 0 && text_[at - 1] != L'\n' && text_[at - 1] != L'\r';
    if (after_open_line) added += kLineEnd;
    if (!lines.found) added.append(L"[").append(section).append(L"]").append(kLineEnd);
    added.append(key).append(L"=").append(value).append(kLineEnd);
    text_.insert(at, added);
}

}  // namespace wordhawk
