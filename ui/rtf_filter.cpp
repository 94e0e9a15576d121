#include "ui/rtf_filter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace wordhawk {
namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The control word that opens the group at `at` (which holds "{"), past an optional "\*".
std::string_view GroupWord(std::string_view rtf, std::size_t at) {
    ++at;
    const auto skip_blanks = [&] {
        while (at < rtf.size() && (rtf[at] == '\r' || rtf[at] == '\n' || rtf[at] == ' ')) ++at;
    };
    skip_blanks();
    if (rtf.substr(at, 2) == "\\*") {
        at += 2;
        skip_blanks();
    }
    if (at >= rtf.size() || rtf[at] != '\\') return {};
    const std::size_t start = ++at;
    while (at < rtf.size() && IsLetter(rtf[at])) ++at;
    return rtf.substr(start, at - start);
}

bool IsUnwanted(std::string_view word) {
    constexpr std::array<std::string_view, 6> kUnwanted = {"pict",    "object",  "shppict",
                                                           "nonshppict", "objdata", "datastore"};
    return std::find(kUnwanted.begin(), kUnwanted.end(), word) != kUnwanted.end();
}

/// The first place behind the token at `at`: an escape, a control word (with the raw bytes that
/// \bin announces), or one byte.
std::size_t TokenEnd(std::string_view rtf, std::size_t at) {
    if (rtf[at] != '\\') return at + 1;
    std::size_t end = at + 1;
    if (end >= rtf.size()) return end;
    if (!IsLetter(rtf[end])) return end + 1;
    const std::size_t word_start = end;
    while (end < rtf.size() && IsLetter(rtf[end])) ++end;
    if (rtf.substr(word_start, end - word_start) != "bin") return end;
    std::uint64_t count = 0;
    const std::size_t digits = end;
    while (end < rtf.size() && IsDigit(rtf[end])) ++end;
    std::from_chars(rtf.data() + digits, rtf.data() + end, count);
    if (end < rtf.size() && rtf[end] == ' ') ++end;
    return end + static_cast<std::size_t>(std::min<std::uint64_t>(count, rtf.size() - end));
}

/// The first place behind the group that opens at `at`.
std::size_t GroupEnd(std::string_view rtf, std::size_t at) {
    std::size_t depth = 0;
    while (at < rtf.size()) {
        if (rtf[at] == '{') ++depth;
        const bool closes = rtf[at] == '}' && --depth == 0;
        at = TokenEnd(rtf, at);
        if (closes) break;
    }
    return at;
}

}  // namespace

std::string RtfWithoutObjects(std::string_view rtf) {
    std::string kept;
    kept.reserve(rtf.size());
    for (std::size_t at = 0; at < rtf.size();) {
        if (rtf[at] == '{' && IsUnwanted(GroupWord(rtf, at))) {
            at = GroupEnd(rtf, at);
            continue;
        }
        const std::size_t end = TokenEnd(rtf, at);
        kept.append(rtf.substr(at, end - at));
        at = end;
    }
    return kept;
}

std::string RtfWithAutomaticColour(std::string_view rtf, int red, int green, int blue) {
    std::string result(rtf);
    const std::size_t table = result.find("{\\colortbl");
    if (table == std::string::npos) return result;
    const std::string entry = "\\red" + std::to_string(red) + "\\green" + std::to_string(green) +
                              "\\blue" + std::to_string(blue) + ";";
    const std::size_t found = result.find(entry, table);
    // An entry without a colour is the automatic one; the others keep their numbers.
    if (found != std::string::npos && found < GroupEnd(result, table)) {
        result.replace(found, entry.size(), ";");
    }
    return result;
}

}  // namespace wordhawk
