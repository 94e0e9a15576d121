#include "dict/entry_line.h"

#include "dict/phonetic_key.h"

#include <algorithm>

namespace wordhawk {
namespace {

bool BreaksEntry(wchar_t c) { return c == L',' || c < 32 || c == 127; }

}  // namespace

std::string EntryLine(std::wstring_view word, const AnsiCodePage& page) {
    const std::wstring lower = Lower(word);
    return page.Encode(lower) + "," + std::to_string(GetPhoneticKey(lower, page)) + "\r\n";
}

bool PageHolds(std::wstring_view word, const AnsiCodePage& page) {
    return std::all_of(word.begin(), word.end(),
                       [&page](wchar_t c) { return page.ToByteOrNone(LowerChar(c)) >= 0; });
}

Result<std::string> CheckedEntryLine(std::wstring_view word, const AnsiCodePage& page) {
    std::wstring_view objection;
    if (word.empty()) {
        objection = L"an empty word cannot stand in a dictionary";
    } else if (std::any_of(word.begin(), word.end(), BreaksEntry)) {
        objection = L"a dictionary word cannot hold a comma, a line break or a control character";
    } else if (!PageHolds(word, page)) {
        objection = L"the dictionary's code page cannot hold this word";
    }
    if (!objection.empty()) return tl::unexpected(Error{std::wstring(objection), {}});
    return EntryLine(word, page);
}

}  // namespace wordhawk
