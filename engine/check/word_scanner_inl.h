#pragma once

#include "engine/check/ascii_letters.h"
#include "engine/check/modSubs.h"
#include "engine/check/word_scanner.h"

#include <type_traits>

namespace wordhawk {

template <class Unit, class Sink>
void WordScanner::ScanPlain(std::basic_string_view<Unit> block, Sink&& sink) {
    const Unit* const text = block.data();
    const std::size_t size = block.size();
    std::array<char, kLongestUsual + 1> bytes;
    std::size_t i = 0;
    while (true) {
        while (i < size && (EntryOf(text[i]) & kSeparator) != 0) ++i;
        if (i == size) return;
        const std::size_t start = i;
        if constexpr (std::is_same_v<Unit, char>) {
            // Nearly every word of such a text.
            if (letters_are_usual_ && size - start > AsciiLetters::kMost) {
                const AsciiLetters letters(text + start);
                const std::size_t length = letters.Count();
                if (length >= 1 && (EntryOf(text[start + length]) & kSeparator) != 0) {
                    i += length + 1;
                    if (length >= 2) {
                        sink(AsciiWord{block.substr(start, length), consumed_ + start,
                                       letters.Lower(), letters.Packed()});
                    }
                    continue;
                }
            }
        }
        unsigned seen = 0;
        PackedWord packed;
        for (; i < size; ++i) {
            const unsigned entry = EntryOf(text[i]);
            if ((entry & kSeparator) != 0) break;
            seen |= entry;
            bytes[(i - start) & kLongestUsual] = static_cast<char>(entry);
            packed.Append(static_cast<unsigned char>(entry));
        }
        const std::size_t length = i - start;
        if (length < 2) continue;
        const std::basic_string_view<Unit> token = block.substr(start, length);
        const bool usual = (seen & (kUnusual | kCased)) == kCased && length <= kLongestUsual &&
                           !IsApostrophe(token.front()) && !IsApostrophe(token.back());
        if (usual) {
            if (length > PackedWord::kLongest) packed = {};
            sink(WordOf<Unit>{token, consumed_ + start, std::string_view(bytes.data(), length),
                              packed});
        } else {
            ScanUnusual(token, consumed_ + start, sink);
        }
    }
}

template <class Unit, class Sink>
void WordScanner::ScanUnusual(std::basic_string_view<Unit> token, std::uint64_t offset,
                              Sink&& sink) {
    lower_.assign(token.begin(), token.end());
    for (wchar_t& c : lower_) c = LowerChar(c);
    if (rules_.straight_apostrophe) lower_ = WithStraightApostrophes(std::move(lower_));
    std::wstring_view word = lower_;
    if (modSubs::CleanWord(word, rules_) < 0) return;
    // A word may hold commas when the comma does not split; it is looked up piece by piece.
    for (std::size_t from = 0; from <= word.size();) {
        const std::size_t comma = std::min(word.find(L',', from), word.size());
        if (comma > from) {
            const auto begin = static_cast<std::size_t>(word.data() - lower_.data()) + from;
            sink(WordOf<Unit>{token.substr(begin, comma - from), offset + begin, {}, {}});
        }
        from = comma + 1;
    }
}

}  // namespace wordhawk
