#pragma once

#include "dict/dictionary_store.h"
#include "engine/suggest/suggestions.h"

#include <memory>
#include <string_view>

namespace wordhawk {

class WideSearch;

/// The search for suggestions that the settings choose: through the whole dictionary with
/// WideSearch, else through the file of the word's beginning.
class Suggester {
  public:
    /// The store must outlive the object, which takes the settings as they are now.
    Suggester(DictionaryStore& store, const Settings& settings);
    ~Suggester();
    Suggester(Suggester&&) noexcept;

    /// The preferred ones of a forbidden word come first, and no forbidden word is suggested. With
    /// StraightApostrophe, suggestions for a word with typographic apostrophes have them too.
    Suggestions Find(std::wstring_view word);

  private:
    Suggestions Search(std::wstring_view word);

    DictionaryStore& store_;
    SuggestionRules rules_;
    std::unique_ptr<WideSearch> wide_;
};

}  // namespace wordhawk
