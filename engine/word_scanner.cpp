#include "engine/word_scanner.h"

#include "app/delimiter_flags.h"

namespace wordhawk {

WordScanner::WordScanner(const SplitRules& rules, const AnsiCodePage& page) : rules_(rules) {
    const DelimiterSet delimiters(rules.delimiters);
    for (std::uint32_t unit = 0; unit < table_.size(); ++unit) {
        const auto c = static_cast<wchar_t>(unit);
        if (c == L' ' || c == L'\r' || c == L'\n' || delimiters.Contains(c)) {
            table_[unit] = kSeparator;
            continue;
        }
        const wchar_t lower = LowerChar(c);
        const int byte = page.ToByteOrNone(lower);
        std::uint16_t entry = byte < 0 ? kUnusual : static_cast<std::uint16_t>(byte);
        const bool edge = c != L'\'' && modSubs::IsEdgeDelimiter(c);
        if (edge || byte == 0 || c == L',' || (c >= L'0' && c <= L'9')) entry |= kUnusual;
        if (UpperChar(lower) != lower) entry |= kCased;
        table_[unit] = entry;
    }
}

}  // namespace wordhawk
