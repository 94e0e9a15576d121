#pragma once

#include "app/progress.h"
#include "dict/dictionary_store.h"
#include "engine/suggest/suggestions.h"

#include <algorithm>
#include <memory>
#include <string_view>

namespace wordhawk {

/// Suggestions from the whole dictionary, by how likely it is that a writer who means a word writes
/// what stands there: the cost of the edits between both, and how rare the word is. Candidates are
/// all words of the main and the active custom dictionaries at most two edits away, and pairs of
/// words that were written as one; where these are poor, words up to MostEdits away and, in
/// English, words that sound the same. Words of one letter have none, nor have those of more
/// than 64.
class WideSearch {
  public:
    static constexpr int kMostEdits = 5;
    /// Candidates that are more edits away from a word of this many characters are only suggested
    /// when they sound the same: two in five characters. Words of less than five turn into anything
    /// with three.
    static constexpr int MostEdits(std::size_t size) {
        return size < 5 ? 2 : std::clamp(static_cast<int>(2 * size / 5), 3, kMostEdits);
    }
    /// Every word up to MostEdits away is weighed when the edits to none of those that are found
    /// faster cost less than this.
    static constexpr float kHopeless = 10;

    /// The store must outlive the object; its language and custom dictionaries may change.
    explicit WideSearch(DictionaryStore& store);
    ~WideSearch();
    WideSearch(const WideSearch&) = delete;
    WideSearch& operator=(const WideSearch&) = delete;

    /// The best first, in lower case, each with a score in percent that never rises along the list:
    /// 100 for the word itself alone, which comes first when the dictionaries hold it. The best is
    /// entry 0. Files that changed on the disk are seen. The first search may have to make the
    /// index of the language (see Prepare).
    Suggestions Find(std::wstring_view word);

    /// Makes the index of the language now, unless it is there: a second or less for most, some for
    /// languages of millions of forms. The display is told of a range only when there is something
    /// to make. False when the user stopped it.
    bool Prepare(Progress& progress);

    /// How the costs of one candidate come about.
    struct Account {
        bool known = false;  ///< a dictionary holds the candidate
        int distance = 0;    ///< edits, a swap of neighbours being one
        bool sounds_alike = false;
        float edits = 0;   ///< cost of the edits, in nats
        float rarity = 0;  ///< cost of the word's rarity
        float traits = 0;  ///< cost of what differs between the words as wholes
        int score = 0;     ///< percent
    };
    Account Explain(std::wstring_view word, std::wstring_view candidate);

  private:
    class Search;
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace wordhawk
