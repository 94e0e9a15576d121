#include "ui/main_window/rtf_filter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>

namespace wordhawk {
namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The control word at `at`; empty when there is none.
std::string_view ControlWord(std::string_view rtf, std::size_t at) {
    if (at >= rtf.size() || rtf[at] != '\\') return {};
    const std::size_t start = ++at;
    while (at < rtf.size() && IsLetter(rtf[at])) ++at;
    return rtf.substr(start, at - start);
}

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
    return ControlWord(rtf, at);
}

bool IsUnwanted(std::string_view word) {
    constexpr std::array<std::string_view, 6> kUnwanted = {"pict",       "object",  "shppict",
                                                           "nonshppict", "objdata", "datastore"};
    return std::find(kUnwanted.begin(), kUnwanted.end(), word) != kUnwanted.end();
}

/// The first place behind the token at `at`: an escape, a control word with its number (and the raw
/// bytes that \bin announces), or one byte.
std::size_t TokenEnd(std::string_view rtf, std::size_t at) {
    if (rtf[at] != '\\') return at + 1;
    const std::string_view word = ControlWord(rtf, at);
    if (word.empty()) return std::min(at + 2, rtf.size());
    std::size_t end = at + 1 + word.size();
    const std::size_t number = end;
    if (end < rtf.size() && rtf[end] == '-') ++end;
    while (end < rtf.size() && IsDigit(rtf[end])) ++end;
    if (word != "bin") return end;
    std::uint64_t count = 0;
    const auto read = std::from_chars(rtf.data() + number, rtf.data() + end, count);
    if (read.ec == std::errc::result_out_of_range) count = rtf.size();
    if (end < rtf.size() && rtf[end] == ' ') ++end;
    return end + static_cast<std::size_t>(std::min<std::uint64_t>(count, rtf.size() - end));
}

/// The brace that ends the group in which `at` stands, or the end.
std::size_t RestOfGroupEnd(std::string_view rtf, std::size_t at) {
    std::size_t depth = 0;
    while (at < rtf.size() && (depth > 0 || rtf[at] != '}')) {
        if (rtf[at] == '{') ++depth;
        if (rtf[at] == '}') --depth;
        at = TokenEnd(rtf, at);
    }
    return at;
}

/// The first place behind the group that opens at `at`.
std::size_t GroupEnd(std::string_view rtf, std::size_t at) {
    return std::min(RestOfGroupEnd(rtf, at + 1) + 1, rtf.size());
}

}  // namespace

std::string RtfWithoutObjects(std::string_view rtf) {
    std::string kept;
    kept.reserve(rtf.size());
    bool after_word = false;
    for (std::size_t at = 0; at < rtf.size();) {
        const bool whole_group = rtf[at] == '{' && IsUnwanted(GroupWord(rtf, at));
        // A group may also turn into a picture half-way: then its rest goes, up to its brace.
        const bool rest_of_group = !whole_group && IsUnwanted(ControlWord(rtf, at));
        if (whole_group || rest_of_group) {
            at = whole_group ? GroupEnd(rtf, at) : RestOfGroupEnd(rtf, at);
            // What follows must not become part of the word before.
            if (after_word) kept += ' ';
            after_word = false;
            continue;
        }
        after_word = !ControlWord(rtf, at).empty();
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
    std::string entry = "\\red";
    entry.append(std::to_string(red)).append("\\green").append(std::to_string(green));
    entry.append("\\blue").append(std::to_string(blue)).append(";");
    const std::size_t found = result.find(entry, table);
    // An entry without a colour is the automatic one; the others keep their numbers.
    if (found != std::string::npos && found < GroupEnd(result, table)) {
        result.erase(found, entry.size() - 1);
    }
    return result;
}

}  // namespace wordhawk
