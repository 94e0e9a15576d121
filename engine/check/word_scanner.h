#pragma once

#include "engine/check/packed_word.h"
#include "engine/check/split_rules.h"
#include "engine/check/web_addresses.h"
#include "platform/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace wordhawk {

/// A word that is to be looked up. Views are valid during the callback only.
template <class Unit>
struct WordOf {
    /// As it stands in the text, cleaned, in its own case.
    std::basic_string_view<Unit> text;
    /// Offset of its first unit, counted from the start of the first block.
    std::uint64_t offset;
    /// Its lower-cased bytes, with straight apostrophes as the rules have them, when it consists of
    /// letters of the code page and inner apostrophes, as nearly every word does; else empty.
    std::string_view bytes;
    /// The same bytes as one number, for words of at most 16 of them; else 0.
    PackedWord packed;
};

using ScannedWord = WordOf<wchar_t>;
using AsciiWord = WordOf<char>;

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
            ScanPlain(std::wstring_view(blanked_), sink);
        } else {
            ScanPlain(block, sink);
        }
        consumed_ += block.size();
    }

    /// The same for a block that is all ASCII, whose bytes are its units: calls
    /// `sink(const AsciiWord&)`. Blocks of both kinds may follow one another.
    template <class Sink>
    void ScanAscii(std::string_view block, Sink&& sink) {
        std::vector<AddressBlanker::Range> runs;
        if (rules_.ignore_webs) runs = AddressBlanker::FindRuns(block);
        ScanPlain(runs.empty() ? block : WithoutAddresses(block, runs), sink);
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

    unsigned EntryOf(char c) const { return latin_[static_cast<unsigned char>(c)]; }
    unsigned EntryOf(wchar_t c) const {
        const auto unit = static_cast<std::uint16_t>(c);
        return unit < latin_.size() ? latin_[unit] : others_[c];
    }
    void SetEntry(wchar_t c, std::uint16_t entry);

    std::string_view WithoutAddresses(std::string_view ascii,
                                      const std::vector<AddressBlanker::Range>& runs);
    template <class Unit, class Sink>
    void ScanPlain(std::basic_string_view<Unit> block, Sink&& sink);
    template <class Unit, class Sink>
    void ScanUnusual(std::basic_string_view<Unit> token, std::uint64_t offset, Sink&& sink);

    SplitRules rules_;
    /// The entries of the first 256 units, and those of the others.
    std::array<std::uint16_t, 256> latin_;
    UnitTable<std::uint16_t> others_{kUnusual};
    /// Whether no letter of ASCII is any more than that.
    bool letters_are_usual_ = true;
    AddressBlanker addresses_;
    std::wstring blanked_;
    std::string blanked_ascii_;
    std::wstring lower_;
    std::uint64_t consumed_ = 0;
};

}  // namespace wordhawk

#include "engine/check/word_scanner_inl.h"
