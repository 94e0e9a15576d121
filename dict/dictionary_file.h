#pragma once

#include "dict/entry_line.h"
#include "platform/text.h"

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// Which patterns count as a hit: a main file knows "word,key" lines only, a custom file also bare
/// words, except on its first line.
enum class EntryForms { KeyedOnly, KeyedAndBare };

/// All candidates of one file in file order, with what the search filters on held in columns of
/// their own so that most words are passed over without touching their bytes. A line's first field
/// is the candidate (none when it is empty, or longer than 65,535 bytes); its key is its own when
/// it has one field, the second field when it has two, that of the line before when it has more;
/// where that gives 0, its own again.
struct CandidateList {
    std::vector<std::uint32_t> offsets;
    std::vector<std::uint16_t> lengths;
    std::vector<std::int32_t> keys;
    /// LetterMask of each word, or kUnknownLetters when lower-casing in the page would change it.
    std::vector<std::uint64_t> masks;
    /// Candidates [0, leading_inherits) stand before the first line that sets a key; each takes the
    /// key that the search carries over from the dictionary before, or, when that is 0,
    /// `leading_key`.
    std::size_t leading_inherits = 0;
    std::int32_t leading_key = 0;
    /// Key in force after the last line; 0 when the file has no candidate.
    std::int32_t last_key = 0;

    std::size_t size() const { return offsets.size(); }
};

/// One bit per byte value (folded to 64): equal bytes set equal bits.
std::uint64_t LetterMask(std::string_view bytes);

/// The mask of a candidate that is not wholly in lower case: comparing letters says nothing about
/// it.
inline constexpr std::uint64_t kUnknownLetters = ~std::uint64_t{0};

/// A dictionary file in memory: its bytes, and an index of its entries built when first asked. Not
/// safe to share between threads while the index is being built.
class DictionaryFile {
  public:
    DictionaryFile() = default;
    explicit DictionaryFile(std::string bytes) : bytes_(std::move(bytes)) {}

    const std::string& Bytes() const { return bytes_; }

    /// Whether the lower-cased ANSI `word` is an entry, exactly as the byte patterns "\nword," (any
    /// place), "word," (first byte) and, for bare forms, "\nword\r" would find it.
    bool Contains(std::string_view word, EntryForms forms) const;

    /// The same for a word without comma, CR and LF whose HashBytes is already known.
    bool ContainsHashed(std::string_view word, std::uint32_t hash, EntryForms forms) const;

    /// Hash of a word, eight bytes a step.
    static std::uint32_t HashBytes(std::string_view word) {
        const char* const bytes = word.data();
        const std::size_t size = word.size();
        std::uint64_t hash = size;
        if (size >= 8) {
            for (std::size_t i = 0; i + 8 < size; i += 8)
                hash = Mix(hash, Load<std::uint64_t>(bytes + i));
            return static_cast<std::uint32_t>(Mix(hash, Load<std::uint64_t>(bytes + size - 8)) >>
                                              32);
        }
        // Overlapping loads cover the word whatever its length.
        std::uint64_t all = 0;
        if (size >= 4) {
            all = Load<std::uint32_t>(bytes) | std::uint64_t{Load<std::uint32_t>(bytes + size - 4)}
                                                   << 32;
        } else if (size > 0) {
            all = static_cast<unsigned char>(bytes[0]) |
                  std::uint64_t{static_cast<unsigned char>(bytes[size / 2])} << 8 |
                  std::uint64_t{static_cast<unsigned char>(bytes[size - 1])} << 16;
        }
        return static_cast<std::uint32_t>(Mix(hash, all) >> 32);
    }

    /// Candidates for suggestions; `page` gives keys to lines without one.
    const CandidateList& Candidates(const AnsiCodePage& page) const;

    /// Number of entries (non-empty lines).
    std::size_t CountEntries() const;

  private:
    /// Where an entry stands: 1 + 2 * offset + (1 when it is a bare word); 0 marks a free slot.
    struct Slot {
        std::uint32_t hash;
        std::uint32_t place;

        std::size_t Offset() const { return (place - 1) >> 1; }
        bool IsBare() const { return ((place - 1) & 1) != 0; }
    };
    template <class Number>
    static Number Load(const char* bytes) {
        Number number;
        std::memcpy(&number, bytes, sizeof number);
        return number;
    }
    static std::uint64_t Mix(std::uint64_t hash, std::uint64_t next) {
        const std::uint64_t mixed = (hash ^ next) * 0x9E3779B97F4A7C15u;
        return mixed ^ (mixed >> 29);
    }

    void BuildIndex() const;
    void AddToIndex(Slot slot) const;
    bool Holds(const Slot& slot, std::string_view word) const;

    std::string bytes_;
    mutable std::uint8_t asked_ = 0;
    mutable bool indexed_ = false;
    /// The word that was last looked for through all bytes, and not found: it is often asked for
    /// twice.
    mutable std::string missed_;
    mutable EntryForms missed_form_ = EntryForms::KeyedOnly;
    /// A power of two of slots, at most half of them taken.
    mutable std::vector<Slot> slots_;
    mutable const AnsiCodePage* candidates_page_ = nullptr;
    mutable CandidateList candidates_;
};

/// Sorts decoded lines ascending by their UTF-16 codes. Returns 1 when the range is not within the
/// lines (the caller then gives up without writing), else 0.
int SortLines(std::vector<std::wstring>& lines, std::ptrdiff_t first, std::ptrdiff_t last);

/// Byte edits of a whole file; none touches the disk. Lines may end in CR LF or LF, results end in
/// CR LF and hold no empty line.
namespace dictionary_edit {

/// Whether a line below the first is `entry_line` (which ends in CR LF): an entry on the first line
/// is not seen.
bool HasEntryBelowFirstLine(std::string_view bytes, std::string_view entry_line);

/// When lines are sorted while entries are added: the first line, which hides its entry, depends on
/// it.
enum class SortMoment { AfterLastEntry, AfterEachEntry };

/// Adds entry lines (each ending in CR LF) in order, each unless it is already there, and sorts.
/// None when nothing was added: the file is then to be left untouched.
std::optional<std::string> WithEntries(std::string_view bytes,
                                       const std::vector<std::string>& entry_lines,
                                       const AnsiCodePage& page,
                                       SortMoment moment = SortMoment::AfterLastEntry);

/// All lines of `bytes` that are not empty, sorted, each once.
std::string SortedDistinct(std::string_view bytes, const AnsiCodePage& page);

/// Removes the first line equal to `entry` (no line end). None when there is no such line.
std::optional<std::string> WithoutEntry(std::string_view bytes, std::string_view entry);

}  // namespace dictionary_edit
}  // namespace wordhawk
