#include "engine/check/word_scanner.h"

namespace wordhawk {

WordScanner::WordScanner(const SplitRules& rules, const AnsiCodePage& page) : rules_(rules) {
    // Characters outside the page, and the rare ones whose lower case alone is in it, take the slow
    // way, which asks everything anew.
    latin_.fill(kUnusual);
    for (int code = 0; code < 256; ++code) {
        const wchar_t c = page.ToUnicode(static_cast<unsigned char>(code));
        const wchar_t lower = LowerChar(c);
        const int byte = page.ToByteOrNone(lower);
        std::uint16_t entry = byte < 0 ? kUnusual : static_cast<std::uint16_t>(byte);
        const bool edge = c != L'\'' && modSubs::IsEdgeDelimiter(c);
        if (edge || byte == 0 || c == L',' || (c >= L'0' && c <= L'9')) entry |= kUnusual;
        if (UpperChar(lower) != lower) entry |= kCased;
        SetEntry(c, entry);
    }
    for (const wchar_t c : rules.delimiters) SetEntry(c, kSeparator);
    for (const wchar_t c : {L' ', L'\r', L'\n'}) SetEntry(c, kSeparator);
    if (rules.straight_apostrophe)
        SetEntry(kTypographicApostrophe, static_cast<std::uint16_t>(EntryOf(L'\'')));
    for (unsigned letter = 'a'; letter <= 'z'; ++letter) {
        const unsigned usual = letter | kCased;
        const unsigned capital = letter - 'a' + 'A';
        letters_are_usual_ &= latin_[letter] == usual && latin_[capital] == usual;
    }
}

void WordScanner::SetEntry(wchar_t c, std::uint16_t entry) {
    const auto unit = static_cast<std::uint16_t>(c);
    if (unit < latin_.size()) {
        latin_[unit] = entry;
    } else {
        others_.Set(c, entry);
    }
}

std::string_view WordScanner::WithoutAddresses(std::string_view ascii,
                                               const std::vector<AddressBlanker::Range>& runs) {
    blanked_ascii_.assign(ascii);
    addresses_.BlankRuns(blanked_ascii_, runs);
    return blanked_ascii_;
}

}  // namespace wordhawk
