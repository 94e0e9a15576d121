#pragma once

#include "platform/files.h"
#include "platform/text.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wordhawk {

/// Words that are always flagged, whatever the dictionaries hold, and what to write instead: a
/// house style, or slips that happen to be words. They stand in FORBIDDEN.TXT beside the custom
/// dictionaries, one a line, "teh -> the" or "alot -> a lot, much" or "irregardless" alone, in
/// any encoding of word lists; lines that begin with "#" are notes. Words are compared in lower
/// case, with typographic apostrophes read as straight ones.
class ForbiddenWords {
  public:
    static inline const std::string_view kFileName = "FORBIDDEN.TXT";

    struct Entry {
        std::wstring word;  // lower-cased
        std::vector<std::wstring> preferred;
    };

    ForbiddenWords() = default;
    /// From the bytes of the file. Of two entries of a word the later counts.
    ForbiddenWords(std::string_view bytes, const AnsiCodePage& page);

    bool Empty() const { return entries_.empty(); }
    /// In the order of the file.
    const std::vector<Entry>& Entries() const { return entries_; }
    /// The entry of a word, null when it is not forbidden.
    const Entry* Find(std::wstring_view word) const;

  private:
    std::vector<Entry> entries_;
    std::unordered_map<std::wstring, std::size_t> places_;
};

/// Adds an entry to the file, in place of the word's earlier one; the file is UTF-8 afterwards.
/// Nothing may hold a control character; the word no "->", and no "#" at its beginning; the
/// preferred ones no comma. Errors: the file could not be read, locked or replaced; it is then as
/// it was.
Result<void> ForbidWord(const Path& file, const ForbiddenWords::Entry& entry,
                        const AnsiCodePage& page);

/// Takes a word's entries out of the file. Returns whether there was one. Errors: as above.
Result<bool> AllowWord(const Path& file, std::wstring_view word, const AnsiCodePage& page);

}  // namespace wordhawk
