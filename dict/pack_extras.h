#pragma once

#include "dict/sorted_words.h"
#include "platform/files.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace wordhawk {

/// Names of a pack's own files beside its two-letter files.
inline constexpr std::string_view kPiecesFile = "_pieces_.lst";
inline constexpr std::string_view kCompoundsFile = "_compounds_.lst";

/// Shorter parts of compounds would let any slip pass.
inline constexpr std::size_t kShortestPart = 3;

/// What a part may be in a compound; the numbers in the list of parts are sums of these.
enum CompoundRole : unsigned {
    kCompoundBegin = 2,
    kCompoundMiddle = 4,
    kCompoundEnd = 8,
    /// A first part that makes a name, or in German a noun: the compound has a capital.
    kCompoundCapital = 32,
};

/// What the pack of a language knows beside its words: the pieces into which its words fall where
/// letters delimit, and the parts of which it makes compounds. Read when first asked for; bytes of
/// the pack's code page, lower-cased.
class PackExtras {
  public:
    /// `folder` is the main dictionary folder of the language. Missing lists are empty ones; so are
    /// those that cannot be read, of which each gives an entry of `unreadable` (outlives this).
    PackExtras(Path folder, std::vector<Error>& unreadable)
        : folder_(std::move(folder)), unreadable_(unreadable) {}

    /// Whether a word of the pack leaves this piece when it is cut.
    bool IsPiece(std::string_view lower_bytes);

    /// Whether the word is a first part, any number of middle ones up to two, and a last part,
    /// linking letters being part of the parts. `has_capital`: it is written with a capital.
    bool IsCompound(std::string_view lower_bytes, bool has_capital);

  private:
    struct List {
        SortedWords words;
        bool is_read = false;
    };
    const SortedWords& Read(List& list, std::string_view name);
    bool IsRest(const SortedWords& parts, std::string_view rest, int middles);

    Path folder_;
    std::vector<Error>& unreadable_;
    List pieces_;
    List compounds_;
};

}  // namespace wordhawk
