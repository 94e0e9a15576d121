#include "engine/suggest/suggester.h"

#include "engine/suggest/house_style.h"
#include "engine/suggest/wide_search.h"

namespace wordhawk {

Suggester::Suggester(DictionaryStore& store, const Settings& settings)
    : store_(store),
      rules_(SuggestionRules::From(settings)),
      wide_(settings.WideSearch != 0 ? std::make_unique<WideSearch>(store) : nullptr) {}
Suggester::~Suggester() = default;
Suggester::Suggester(Suggester&&) noexcept = default;

Suggestions Suggester::Find(std::wstring_view word) {
    return AsInTheText(store_, word, [this](std::wstring_view form) { return Search(form); });
}

Suggestions Suggester::Search(std::wstring_view word) {
    return wide_ ? wide_->Find(word) : FindSuggestions(store_, word, rules_);
}

}  // namespace wordhawk
