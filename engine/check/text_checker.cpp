#include "engine/check/text_checker.h"

namespace wordhawk {
namespace {

// Verdicts on known words, and on all that are remembered only lately, are there to save time; they
// are forgotten when there are more of them than this, or when their words are longer in all.
constexpr std::size_t kMostPassingVerdicts = 50'000;
constexpr std::size_t kMostPassingUnits = std::size_t{1} << 21;

}  // namespace

TextChecker::TextChecker(DictionaryStore& store, const SplitRules& rules, Remember remember)
    : store_(store),
      remember_(remember),
      scope_(store.CurrentSettings().SuggFromMain != 0 ? Scope::MainOnly : Scope::MainAndCustom),
      straight_apostrophe_(rules.straight_apostrophe),
      capital_matters_(store.CurrentSettings().Compounds != 0),
      scanner_(rules, store.Page()) {
    // The quick look goes past the store's own check for a changed language.
    store_.SyncWithState();
    for (const ForbiddenWords::Entry& entry : store.Forbidden().Entries()) {
        const int byte = store.Page().ToByteOrNone(entry.word.front());
        if (byte >= 0) may_be_forbidden_[static_cast<std::size_t>(byte)] = true;
    }
}

bool TextChecker::IsKnown(const std::wstring& word) {
    if (store_.Forbidden().Find(lower_) != nullptr) return false;
    const bool typographic =
        straight_apostrophe_ && word.find(kTypographicApostrophe) != std::wstring::npos;
    if (typographic && store_.IsWordInDictionaries(WithStraightApostrophes(word), scope_)) {
        return true;
    }
    return store_.IsWordInDictionaries(word, scope_);
}

TextChecker::Verdict TextChecker::Judge(std::wstring_view text) {
    lower_.assign(text);
    for (wchar_t& c : lower_) c = LowerChar(c);
    if (!capital_matters_ || text.front() == lower_.front()) return JudgeLower();

    capitalized_ = lower_;
    capitalized_.front() = text.front();
    const auto seen = verdicts_.find(std::wstring_view(capitalized_));
    if (seen != verdicts_.end()) return {seen->second, false};
    if (IsKnown(capitalized_)) {
        Keep(capitalized_, -1, Kept::ForAWhile);
        return {-1, true};
    }
    // What is unknown with a capital is so without: one entry of the list stands for both.
    const Verdict verdict = JudgeLower();
    Keep(capitalized_, verdict.index, remember_ == Remember::All ? Kept::Always : Kept::ForAWhile);
    return verdict;
}

TextChecker::Verdict TextChecker::JudgeLower() {
    const auto seen = verdicts_.find(std::wstring_view(lower_));
    if (seen != verdicts_.end()) return {seen->second, false};

    std::int64_t index = -1;
    Kept how_long = Kept::ForAWhile;
    if (!IsKnown(lower_)) {
        index = 0;
        if (remember_ == Remember::All) {
            index = static_cast<std::int64_t>(words_.size());
            words_.push_back(lower_);
            how_long = Kept::Always;
        }
    }
    Keep(lower_, index, how_long);
    return {index, true};
}

void TextChecker::Keep(const std::wstring& word, std::int64_t index, Kept how_long) {
    if (how_long == Kept::ForAWhile) {
        ++passing_verdicts_;
        passing_units_ += word.size();
        if (passing_verdicts_ > kMostPassingVerdicts || passing_units_ > kMostPassingUnits) {
            ForgetOldVerdicts();
            passing_verdicts_ = 1;
            passing_units_ = word.size();
        }
    }
    verdicts_.emplace(word, index);
}

void TextChecker::ForgetOldVerdicts() {
    if (remember_ == Remember::Lately) {
        verdicts_.clear();
    } else {
        std::erase_if(verdicts_, [](const auto& entry) { return entry.second < 0; });
    }
}

}  // namespace wordhawk
