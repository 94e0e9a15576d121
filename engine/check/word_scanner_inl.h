#pragma once

#include "engine/check/modSubs.h"
#include "engine/check/word_scanner.h"

namespace wordhawk {

template <class Sink>
void WordScanner::ScanPlain(std::wstring_view block, Sink&& sink) {
    const wchar_t* const text = block.data();
    const std::size_t size = block.size();
    std::array<char, kLongestUsual + 1> bytes;
    std::size_t i = 0;
    while (true) {
        while (i < size && (table_[static_cast<std::uint16_t>(text[i])] & kSeparator) != 0) ++i;
        if (i == size) return;
        const std::size_t start = i;
        unsigned seen = 0;
        PackedWord packed;
        for (; i < size; ++i) {
            const unsigned entry = table_[static_cast<std::uint16_t>(text[i])];
            if ((entry & kSeparator) != 0) break;
            seen |= entry;
            bytes[(i - start) & kLongestUsual] = static_cast<char>(entry);
            packed.Append(static_cast<unsigned char>(entry));
        }
        const std::size_t length = i - start;
        if (length < 2) continue;
        const std::wstring_view token(text + start, length);
        const bool usual = (seen & (kUnusual | kCased)) == kCased && length <= kLongestUsual &&
                           !IsApostrophe(token.front()) && !IsApostrophe(token.back());
        if (usual) {
            if (length > PackedWord::kLongest) packed = {};
            sink(ScannedWord{token, consumed_ + start, std::string_view(bytes.data(), length),
                             packed});
        } else {
            ScanUnusual(token, consumed_ + start, sink);
        }
    }
}

template <class Sink>
void WordScanner::ScanUnusual(std::wstring_view token, std::uint64_t offset, Sink&& sink) {
    lower_ = Lower(token);
    if (rules_.straight_apostrophe) lower_ = WithStraightApostrophes(std::move(lower_));
    std::wstring_view word = lower_;
    if (modSubs::CleanWord(word, rules_) < 0) return;
    // A word may hold commas when the comma does not split; it is looked up piece by piece.
    for (std::size_t from = 0; from <= word.size();) {
        const std::size_t comma = std::min(word.find(L',', from), word.size());
        if (comma > from) {
            const auto begin = static_cast<std::size_t>(word.data() - lower_.data()) + from;
            sink(ScannedWord{token.substr(begin, comma - from), offset + begin, {}, {}});
        }
        from = comma + 1;
    }
}

}  // namespace wordhawk
