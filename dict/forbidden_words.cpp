#include "dict/forbidden_words.h"

#include "app/apostrophes.h"
#include "dict/change_file.h"
#include "dict/word_list.h"

#include <optional>
#include <utility>

namespace wordhawk {
namespace {

constexpr std::wstring_view kArrow = L"->";

std::wstring Folded(std::wstring_view word) { return WithStraightApostrophes(Lower(word)); }

/// What stands before the first `separator`; `rest` becomes what stands behind it.
std::wstring_view CutOff(std::wstring_view& rest, std::wstring_view separator) {
    const std::size_t at = rest.find(separator);
    const std::wstring_view part = rest.substr(0, at);
    rest = at == std::wstring_view::npos ? std::wstring_view() : rest.substr(at + separator.size());
    return part;
}

/// The entry of a line, none for notes and empty lines.
std::optional<ForbiddenWords::Entry> EntryOf(std::wstring_view line) {
    line = Trim(line);
    if (line.starts_with(L'#')) return std::nullopt;
    ForbiddenWords::Entry entry;
    entry.word = Folded(Trim(CutOff(line, kArrow)));
    if (entry.word.empty()) return std::nullopt;
    while (!line.empty()) {
        const std::wstring_view preferred = Trim(CutOff(line, L","));
        if (!preferred.empty()) entry.preferred.emplace_back(preferred);
    }
    return entry;
}

/// The list's text without the entries of a word, and whether there was one.
std::pair<std::wstring, bool> Without(std::wstring_view word, std::string_view bytes,
                                      const AnsiCodePage& page) {
    std::pair<std::wstring, bool> result{{}, false};
    for (const std::wstring& line : LinesOfList(bytes, page)) {
        const auto entry = EntryOf(line);
        if (entry && entry->word == word) {
            result.second = true;
        } else {
            result.first.append(line).append(L"\r\n");
        }
    }
    return result;
}

}  // namespace

ForbiddenWords::ForbiddenWords(std::string_view bytes, const AnsiCodePage& page) {
    for (const std::wstring& line : LinesOfList(bytes, page)) {
        std::optional<Entry> entry = EntryOf(line);
        if (!entry) continue;
        const auto [place, added] = places_.emplace(entry->word, entries_.size());
        if (added) {
            entries_.push_back(std::move(*entry));
        } else {
            entries_[place->second] = std::move(*entry);
        }
    }
}

const ForbiddenWords::Entry* ForbiddenWords::Find(std::wstring_view word) const {
    if (entries_.empty()) return nullptr;
    const auto place = places_.find(Folded(word));
    return place == places_.end() ? nullptr : &entries_[place->second];
}

Result<void> ForbidWord(const Path& file, const ForbiddenWords::Entry& entry,
                        const AnsiCodePage& page) {
    const auto changed =
        ChangeDictionaryFile(file, [&](std::string_view bytes) -> std::optional<std::string> {
            std::wstring text = Without(Folded(entry.word), bytes, page).first;
            text += entry.word;
            for (const std::wstring& preferred : entry.preferred)
                text += (&preferred == &entry.preferred.front() ? L" -> " : L", ") + preferred;
            return ToUtf8(text + L"\r\n");
        });
    if (!changed) return tl::unexpected(changed.error());
    return {};
}

Result<bool> AllowWord(const Path& file, std::wstring_view word, const AnsiCodePage& page) {
    return ChangeDictionaryFile(file, [&](std::string_view bytes) -> std::optional<std::string> {
        const auto [text, found] = Without(Folded(word), bytes, page);
        if (!found) return std::nullopt;
        return ToUtf8(text);
    });
}

}  // namespace wordhawk
