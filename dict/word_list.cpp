#include "dict/word_list.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";

std::wstring FromUtf16(std::string_view bytes, std::size_t high_byte) {
    std::wstring text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto high = static_cast<unsigned char>(bytes[i + high_byte]);
        const auto low = static_cast<unsigned char>(bytes[i + 1 - high_byte]);
        text.push_back(static_cast<wchar_t>(high << 8 | low));
    }
    return text;
}

std::wstring Decoded(std::string_view bytes, const AnsiCodePage& page) {
    if (bytes.starts_with(kUtf8Mark)) return FromUtf8(bytes.substr(kUtf8Mark.size()));
    if (bytes.starts_with(kLittleEndianMark)) return FromUtf16(bytes.substr(2), 1);
    if (bytes.starts_with(kBigEndianMark)) return FromUtf16(bytes.substr(2), 0);
    return IsUtf8(bytes) ? FromUtf8(bytes) : page.Decode(bytes);
}

/// A number of words on the first line makes it hunspell's form, if the rest bears it out: about as
/// many lines follow, or some of them have flags. A plain list may begin with a number, too.
bool IsHunspellForm(const std::vector<std::wstring>& lines) {
    if (lines.empty()) return false;
    const std::wstring_view first = Trim(lines.front());
    const bool number =
        !first.empty() && first.size() <= 9 &&
        std::all_of(first.begin(), first.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
    if (!number) return false;
    const auto told = static_cast<std::size_t>(NumberOrZero(first));
    const std::size_t there = lines.size() - 1;
    const std::size_t difference = told > there ? told - there : there - told;
    return difference <= told / 10 + 1 ||
           std::any_of(lines.begin() + 1, lines.end(), [](const std::wstring& line) {
               return line.find(L'/') != std::wstring::npos;
           });
}

/// The word of one of hunspell's lines; a backslash takes the meaning from a slash.
std::wstring HunspellWord(std::wstring_view line) {
    std::wstring word;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == L'\\' && i + 1 < line.size() && line[i + 1] == L'/') {
            word.push_back(line[++i]);
        } else if (line[i] == L'/' || line[i] == L'\t') {
            break;
        } else {
            word.push_back(line[i]);
        }
    }
    return word;
}

}  // namespace

std::vector<std::wstring> LinesOfList(std::string_view bytes, const AnsiCodePage& page) {
    const std::wstring decoded = Decoded(bytes, page);
    std::wstring_view text = decoded;
    std::vector<std::wstring> lines;
    while (!text.empty()) {
        const std::size_t feed = text.find(L'\n');
        std::wstring_view line = text.substr(0, feed);
        if (feed != text.npos && line.ends_with(L'\r')) line.remove_suffix(1);
        lines.emplace_back(line);
        text.remove_prefix(feed == text.npos ? text.size() : feed + 1);
    }
    return lines;
}

std::vector<std::wstring> EntriesOfWordList(std::string_view bytes, const AnsiCodePage& page) {
    std::vector<std::wstring> entries = LinesOfList(bytes, page);
    if (!IsHunspellForm(entries)) return entries;
    entries.erase(entries.begin());
    for (std::wstring& entry : entries) entry = HunspellWord(entry);
    return entries;
}

}  // namespace wordhawk
