// The commands of SpellSession that write dictionaries.

#include "engine/session/captions.h"
#include "engine/session/spell_session.h"

#include <algorithm>
#include <set>
#include <utility>

namespace wordhawk {
namespace {

/// Delimiter flag that asks for the question below.
constexpr int kWarnBeforeMainAdd = 254;

AddTarget TargetOf(AddIndex index) {
    return index == AddIndex::Main ? AddTarget::Main : AddTarget::ActiveCustom;
}

bool HasEntry(const Path& file, std::wstring_view word, const AnsiCodePage& page) {
    const Result<std::string> bytes = ReadWholeFile(file);
    return bytes && dictionary_edit::HasEntryBelowFirstLine(*bytes, EntryLine(word, page));
}

}  // namespace

bool SpellSession::Confirmed(AddIndex index) const {
    if (index != AddIndex::Main || parts_.flags.Get(kWarnBeforeMainAdd) == 0) return true;
    const ProgramState& state = parts_.dictionaries.State();
    return parts_.ui.ShowMessage(captions::MainAddQuestion(state), captions::MainAddTitle(state),
                                 MessageIcon::Question,
                                 MessageButtons::YesNoDefaultNo) == Answer::Yes;
}

SessionStep SpellSession::Add(AddIndex index) {
    if (!Buttons({}).cmdAdd || !Confirmed(index)) return {};
    return AddCurrent(index, TargetOf(index), {});
}

SessionStep SpellSession::AddTo(std::wstring_view custom_name) {
    if (!Buttons({}).cmdAdd) return {};
    return AddCurrent(AddIndex::Custom, AddTarget::ExplicitFile,
                      parts_.dictionaries.CustomPath(custom_name));
}

SessionStep SpellSession::AddCurrent(AddIndex index, AddTarget target, Path path) {
    DictionaryStore& dictionaries = parts_.dictionaries;
    AddedWord added{current_, index, {}, false};
    added.file = AdditionFile(dictionaries, current_, target, path);
    added.already_there = HasEntry(added.file, added.word, dictionaries.Page());

    const Result<void> outcome = AddWordToDictionary(dictionaries, added.word, target, path);
    dictionaries.ReloadFile(added.file);
    if (!outcome) {
        // The word is as unknown as before, so it stays under correction.
        SessionStep step;
        step.failure = outcome.error();
        return step;
    }
    const std::optional<std::size_t> removed = RemoveCurrentEntry();
    SessionStep step = SelectNextWord();
    step.removed = removed;
    step.added = added;
    if (!added.already_there) {
        last_added_ = added;
        last_added_index_ = removed.value_or(0);
    }
    return step;
}

SessionStep SpellSession::AddAll(AddIndex index, Progress& progress) {
    if (words_.empty() || !Buttons({}).cmdAddAll || !Confirmed(index)) return {};
    DictionaryStore& dictionaries = parts_.dictionaries;
    const AddTarget target = TargetOf(index);
    Path path;
    std::set<Path> files;
    for (const std::wstring& word : words_) {
        files.insert(AdditionFile(dictionaries, word, target, path));
    }
    Result<void> outcome;
    {
        const Hourglass busy(parts_.ui);
        outcome = AddWordsToDictionary(dictionaries, words_, target, path, progress);
        for (const Path& file : files) dictionaries.ReloadFile(file);
    }
    SessionStep step;
    if (dictionaries.State().StopFlag || !outcome) {
        KeepUnknownWords(index);
        step = SelectNextWord();
        step.refill = true;
    } else {
        step = ResetFinished();
    }
    if (!outcome) step.failure = outcome.error();
    return step;
}

void SpellSession::KeepUnknownWords(AddIndex index) {
    DictionaryStore& dictionaries = parts_.dictionaries;
    std::vector<std::wstring> words = words_;
    std::erase_if(words, [&](const std::wstring& word) {
        return index == AddIndex::Main ? dictionaries.IsWordInDictionaries(word, Scope::MainOnly)
                                       : dictionaries.IsWordInCustomDictionaries(word);
    });
    FillList(std::move(words));
}

SessionStep SpellSession::UndoLastAdd() {
    if (!last_added_) return {};
    const AddedWord added = *last_added_;
    SessionStep step;
    const Result<bool> taken_out =
        RemoveWordFromCustomDictionary(parts_.dictionaries, added.word, added.file);
    if (!taken_out) {
        step.failure = taken_out.error();
        return step;
    }
    parts_.dictionaries.ReloadFile(added.file);
    last_added_.reset();

    Sync();
    const std::size_t index = std::min(last_added_index_, words_.size());
    const auto at = static_cast<std::ptrdiff_t>(index);
    const WordPositions::Id id = positions_.Add(added.word, parts_.document.Text());
    ids_.insert(ids_.begin() + at, id);
    words_.insert(words_.begin() + at, added.word);
    step = Show(index);
    step.inserted = index;
    return step;
}

}  // namespace wordhawk
