#include "engine/check/word_scanner.h"

namespace wordhawk {

WordScanner::WordScanner(const SplitRules& rules, const AnsiCodePage& page) : rules_(rules) {
    // Characters outside the page, and the rare ones whose lower case alone is in it, take the slow
    // way, which asks everything anew.
    table_.fill(kUnusual);
    for (int code = 0; code < 256; ++code) {
        const wchar_t c = page.ToUnicode(static_cast<unsigned char>(code));
        const wchar_t lower = LowerChar(c);
        const int byte = page.ToByteOrNone(lower);
        std::uint16_t& entry = table_[static_cast<std::uint16_t>(c)];
        entry = byte < 0 ? kUnusual : static_cast<std::uint16_t>(byte);
        const bool edge = c != L'\'' && modSubs::IsEdgeDelimiter(c);
        if (edge || byte == 0 || c == L',' || (c >= L'0' && c <= L'9')) entry |= kUnusual;
        if (UpperChar(lower) != lower) entry |= kCased;
    }
    for (const wchar_t c : rules.delimiters) table_[static_cast<std::uint16_t>(c)] = kSeparator;
    for (const wchar_t c : {L' ', L'\r', L'\n'}) table_[static_cast<std::uint16_t>(c)] = kSeparator;
    if (rules.straight_apostrophe) table_[kTypographicApostrophe] = table_[L'\''];
}

}  // namespace wordhawk
