#include "engine/session/word_removal.h"

#include "dict/custom_words.h"
#include "engine/session/captions.h"

namespace wordhawk {

Result<WordRemoval::Outcome> WordRemoval::Remove(std::wstring_view word) {
    last_.reset();
    if (word.empty()) return Outcome::NotFound;
    for (std::size_t i = 0; i < dictionaries_.CustomCount(); ++i) {
        const Path file = dictionaries_.CustomPath(dictionaries_.CustomName(i));
        const Result<bool> removed = RemoveFrom(file, word);
        if (!removed) return tl::unexpected(removed.error());
        if (!*removed) continue;
        last_ = RemovedWord{std::wstring(word), file, false};
        return Outcome::Removed;
    }
    if (!dictionaries_.IsWordInDictionaries(word, Scope::MainOnly)) return Outcome::NotFound;
    if (!Confirmed(word)) return Outcome::Declined;
    const Path file = dictionaries_.MainPathFor(Lower(word));
    const Result<bool> removed = RemoveFrom(file, word);
    if (!removed) return tl::unexpected(removed.error());
    if (!*removed) return Outcome::NotFound;
    last_ = RemovedWord{std::wstring(word), file, true};
    return Outcome::Removed;
}

Result<bool> WordRemoval::RemoveFrom(const Path& file, std::wstring_view word) {
    const Hourglass busy(ui_);
    Result<bool> removed = RemoveWordFromCustomDictionary(dictionaries_, word, file);
    if (removed && *removed) dictionaries_.ReloadFile(file);
    return removed;
}

bool WordRemoval::Confirmed(std::wstring_view word) const {
    const ProgramState& state = dictionaries_.State();
    return ui_.ShowMessage(captions::MainRemoveQuestion(state, word),
                           captions::MainRemoveTitle(state), MessageIcon::Question,
                           MessageButtons::YesNoDefaultNo) == Answer::Yes;
}

Result<void> WordRemoval::PutBack() {
    if (!last_) return {};
    Path file = last_->file;
    const Result<void> added =
        AddWordToDictionary(dictionaries_, last_->word, AddTarget::ExplicitFile, file);
    if (!added) return added;
    dictionaries_.ReloadFile(file);
    last_.reset();
    return {};
}

}  // namespace wordhawk
