#include "engine/check/text_checker.h"

#include <new>
#include <type_traits>

namespace wordhawk {
namespace {

// Verdicts on known words only save time; beyond this many they are forgotten.
constexpr std::size_t kMostKnownVerdicts = 50'000;

}  // namespace

TextChecker::TextChecker(DictionaryStore& store, const SplitRules& rules)
    : store_(store),
      scope_(store.CurrentSettings().SuggFromMain != 0 ? Scope::MainOnly : Scope::MainAndCustom),
      scanner_(rules, store.Page()) {
    // The quick look goes past the store's own check for a changed language.
    store_.SyncWithState();
}

std::unique_ptr<PackedWord[], TextChecker::Free> TextChecker::MakeRecent() {
    static_assert(std::is_trivially_copyable_v<PackedWord>);
    void* const zeroed = std::calloc(std::size_t{1} << kRecentBits, sizeof(PackedWord));
    if (zeroed == nullptr) throw std::bad_alloc();
    return std::unique_ptr<PackedWord[], Free>(static_cast<PackedWord*>(zeroed));
}

std::int64_t TextChecker::IndexOfUnknown(std::wstring_view text) {
    lower_.assign(text);
    for (wchar_t& c : lower_) c = LowerChar(c);
    const auto seen = verdicts_.find(std::wstring_view(lower_));
    if (seen != verdicts_.end()) return seen->second;

    std::int64_t verdict = -1;
    if (!store_.IsWordInDictionaries(lower_, scope_)) {
        verdict = static_cast<std::int64_t>(words_.size());
        words_.push_back(lower_);
    } else if (++known_verdicts_ > kMostKnownVerdicts) {
        std::erase_if(verdicts_, [](const auto& entry) { return entry.second < 0; });
        known_verdicts_ = 1;
    }
    verdicts_.emplace(lower_, verdict);
    return verdict;
}

}  // namespace wordhawk
