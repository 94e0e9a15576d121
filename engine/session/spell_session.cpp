#include "engine/session/spell_session.h"

#include "engine/session/captions.h"
#include "platform/text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace wordhawk {

SessionStep SpellSession::Begin(std::vector<std::wstring> words) {
    Reset();
    FillList(std::move(words));
    return words_.empty() ? SessionStep{} : SelectNextWord();
}

void SpellSession::Reset() {
    FillList({});
    current_.clear();
    current_index_.reset();
    occurrence_start_ = search_position_ = kNotFound;
    last_added_.reset();
}

void SpellSession::FillList(std::vector<std::wstring> words) {
    words_ = std::move(words);
    positions_.Clear();
    positions_.AddUnscanned(words_);
    ids_.resize(words_.size());
    std::iota(ids_.begin(), ids_.end(), WordPositions::Id{0});
    scanned_revision_.reset();
}

void SpellSession::Sync() {
    const std::uint64_t revision = parts_.document.Revision();
    if (scanned_revision_ == revision) return;
    positions_.Scan(parts_.document.Text());
    scanned_revision_ = revision;
}

SessionStep SpellSession::SelectNextWord() {
    if (words_.empty()) return ResetFinished();
    Sync();
    // On equal offsets the later entry wins, and one that no longer occurs goes before all others.
    std::size_t best = 0;
    TextOffset best_offset = positions_.First(ids_[0]);
    for (std::size_t i = 1; i < words_.size(); ++i) {
        const TextOffset offset = positions_.First(ids_[i]);
        if (offset > best_offset) continue;
        best = i;
        best_offset = offset;
    }
    return Show(best);
}

SessionStep SpellSession::SelectWord(std::size_t index) {
    if (index >= words_.size()) return {};
    Sync();
    return Show(index);
}

SessionStep SpellSession::Show(std::size_t index) {
    current_index_ = index;
    current_ = words_[index];
    SelectOccurrence(positions_.First(ids_[index]));
    SessionStep step;
    step.kind = SessionStep::Kind::NewWord;
    return step;
}

void SpellSession::SelectOccurrence(TextOffset start) {
    occurrence_start_ = start;
    if (start == kNotFound) {
        // A selection left from before must not be taken for this word.
        search_position_ = kNotFound;
        parts_.document.Select({parts_.document.Selection().start, 0});
        return;
    }
    search_position_ = start + static_cast<TextOffset>(current_.size());
    parts_.document.Select({static_cast<std::size_t>(start), current_.size()});
}

SessionStep SpellSession::ContinueOrIgnoreAll() {
    if (!current_index_) return {};
    Sync();
    const TextOffset next = positions_.Next(ids_[*current_index_], search_position_);
    if (next == kNotFound) return IgnoreAll();
    SelectOccurrence(next);
    SessionStep step;
    step.kind = SessionStep::Kind::NextOccurrence;
    return step;
}

SessionStep SpellSession::Ignore() { return ContinueOrIgnoreAll(); }

SessionStep SpellSession::IgnoreAll() {
    if (!current_index_) return {};
    const std::optional<std::size_t> removed = RemoveCurrentEntry();
    SessionStep step = SelectNextWord();
    step.removed = removed;
    return step;
}

std::optional<std::size_t> SpellSession::RemoveCurrentEntry() {
    const auto entry = std::find_if(words_.begin(), words_.end(), [this](const std::wstring& word) {
        return EqualIgnoringCase(word, current_);
    });
    if (entry == words_.end()) return std::nullopt;
    const auto index = entry - words_.begin();
    positions_.Remove(ids_[static_cast<std::size_t>(index)]);
    ids_.erase(ids_.begin() + index);
    words_.erase(entry);
    return static_cast<std::size_t>(index);
}

SessionStep SpellSession::Change(std::wstring_view replacement) {
    if (!Buttons(replacement).cmdChange) return {};
    const bool replaced = parts_.document.Selection().length > 0;
    if (replaced) {
        ReplaceSelected(replacement);
        parts_.recent.RememberReplacement(replacement);
    }
    if (search_position_ != kNotFound) {
        search_position_ = occurrence_start_ + static_cast<TextOffset>(replacement.size());
    }
    SessionStep step = ContinueOrIgnoreAll();
    step.recent_changed = replaced;
    return step;
}

void SpellSession::ReplaceSelected(std::wstring_view replacement) {
    SpellDocument& document = parts_.document;
    Sync();
    const TextRange selection = document.Selection();
    const std::size_t size_before = document.Text().size();
    document.ReplaceSelection(replacement);
    FollowReplacement({&selection.start, 1}, selection.length, replacement, size_before);
}

SessionStep SpellSession::ChangeAll(std::wstring_view replacement) {
    if (!Buttons(replacement).cmdChangeAll) return {};
    SpellDocument& document = parts_.document;
    Sync();
    const std::size_t size_before = document.Text().size();
    const std::vector<std::size_t> starts =
        positions_.ReplacementStarts(ids_[*current_index_], document.Text(), replacement);
    if (!starts.empty()) {
        document.ReplaceAll(starts, current_.size(), replacement);
        FollowReplacement(starts, current_.size(), replacement, size_before);
    }
    search_position_ = kNotFound;
    return IgnoreAll();
}

void SpellSession::FollowReplacement(std::span<const std::size_t> starts, std::size_t removed,
                                     std::wstring_view replacement, std::size_t size_before) {
    const std::wstring& text = parts_.document.Text();
    const std::size_t shift = replacement.size() - removed;
    // A control may take a replacement in another form; the next Sync then scans everything.
    if (text.size() != size_before + starts.size() * shift) return;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        if (text.compare(starts[i] + i * shift, replacement.size(), replacement) != 0) return;
    }
    positions_.Replaced(text, starts, removed, replacement.size());
    scanned_revision_ = parts_.document.Revision();
}

SessionStep SpellSession::ResetFinished() {
    FillList({});
    current_.clear();
    current_index_.reset();
    occurrence_start_ = search_position_ = kNotFound;
    // The next key would replace what is selected.
    parts_.document.CollapseSelection();
    SessionStep step;
    step.kind = SessionStep::Kind::Finished;
    step.notice = Notice();
    step.close = !parts_.dictionaries.CurrentSettings().RemainOpen;
    return step;
}

CompletionNotice SpellSession::Notice() const {
    if (!notice_wanted_) return CompletionNotice::None;
    return parts_.dictionaries.CurrentSettings().Confirmation.empty()
               ? CompletionNotice::ShowMessage
               : CompletionNotice::PlaySound;
}

std::size_t SpellSession::OccurrencesOf(std::size_t index) const {
    return index < ids_.size() ? positions_.Count(ids_[index]) : 0;
}

std::wstring SpellSession::NotFoundCaption() const { return captions::NotFound(words_.size()); }

ButtonStates SpellSession::Buttons(std::wstring_view change_to) const {
    const bool word_shown = !Trim(current_).empty();
    const bool has_text = !Trim(change_to).empty();
    ButtonStates states;
    states.cmdIgnore = states.cmdIgnoreAll = !words_.empty();
    states.cmdChange = states.cmdChangeAll = word_shown && has_text;
    // A phrase cannot be added to a dictionary.
    states.cmdAdd = states.cmdAddAll = word_shown && current_.find(L' ') == std::wstring::npos;
    // Any text can be looked up, so no word need be shown.
    states.cmdSuggestions = has_text;
    return states;
}

}  // namespace wordhawk
