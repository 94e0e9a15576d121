#pragma once

#include "engine/check/split_rules.h"
#include "engine/check/web_addresses.h"
#include "platform/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace wordhawk {

/// Up to 16 bytes, none of them NUL, as one number: equal numbers are equal words.
struct PackedWord {
    static constexpr std::size_t kLongest = 16;
    std::uint64_t high = 0;
    std::uint64_t low = 0;

    void Append(unsigned char byte) {
        high = (high << 8) | (low >> 56);
        low = (low << 8) | byte;
    }
    bool operator==(const PackedWord&) const = default;
};

/// A word that is to be looked up. Views are valid during the callback only.
struct ScannedWord {
    /// As it stands in the text, cleaned, in its own case.
    std::wstring_view text;
    /// Offset of its first unit, counted from the start of the first block.
    std::uint64_t offset;
    /// Its lower-cased bytes, with straight apostrophes as the rules have them, when it consists of
    /// letters of the code page and inner apostrophes, as nearly every word does; else empty.
    std::string_view bytes;
    /// The same bytes as one number, for words of at most 16 of them; else 0.
    PackedWord packed;
};

/// Cuts a text that comes in blocks into the words that a check looks up: in one pass what
/// RemoveWebAddresses, ReplaceDelimiters, lower-casing, splitting and CleanWord do one after
/// another. CR and LF end lines in any combination. Every occurrence is given, in text order.
class WordScanner {
  public:
    WordScanner(const SplitRules& rules, const AnsiCodePage& page);

    /// Calls `sink(const ScannedWord&)` for each word of `block`. A block ends behind a space or a
    /// line break, or is the last.
    template <class Sink>
    void Scan(std::wstring_view block, Sink&& sink) {
        std::vector<AddressBlanker::Range> runs;
        if (rules_.ignore_webs) runs = AddressBlanker::FindRuns(block);
        if (!runs.empty()) {
            blanked_.assign(block);
            addresses_.BlankRuns(blanked_, runs);
            ScanPlain(blanked_, sink);
        } else {
            ScanPlain(block, sink);
        }
        consumed_ += block.size();
    }

    std::uint64_t Consumed() const { return consumed_; }

  private:
    // What a unit means to the scanner; the low byte of a table entry is its lower-cased ANSI byte.
    static constexpr std::uint16_t kSeparator = 0x100;
    static constexpr std::uint16_t kUnusual =
        0x200;  // digit, edge delimiter, comma, NUL, not in the page
    static constexpr std::uint16_t kCased = 0x400;
    static constexpr std::size_t kLongestUsual = 63;

    static bool IsApostrophe(wchar_t c) { return c == L'\'' || c == kTypographicApostrophe; }

    template <class Sink>
    void ScanPlain(std::wstring_view block, Sink&& sink);
    template <class Sink>
    void ScanUnusual(std::wstring_view token, std::uint64_t offset, Sink&& sink);

    SplitRules rules_;
    std::array<std::uint16_t, 65536> table_;
    AddressBlanker addresses_;
    std::wstring blanked_;
    std::wstring lower_;
    std::uint64_t consumed_ = 0;
};

}  // namespace wordhawk

#include "engine/check/word_scanner_inl.h"
