#include "ui/main_window/correction_commands.h"

#include "app/version.h"
#include "engine/check/modSubs.h"
#include "engine/session/captions.h"
#include "engine/suggest/suggestion_case.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"

#include <algorithm>

namespace wordhawk {

using modLoadRes::LoadResText;

CorrectionCommands::CorrectionCommands(Parts parts)
    : session({parts.controls.document, parts.program.dictionaries, parts.program.flags, recent,
               parts.program.ui}),
      parts_(std::move(parts)),
      removal_(parts_.program.dictionaries, parts_.program.ui) {}

bool CorrectionCommands::Begin(std::vector<std::wstring> words) {
    const SessionStep step = session.Begin(std::move(words));
    parts_.controls.lstNID.Fill(session.Words());
    Run(step);
    UpdateCounter();
    return step.kind == SessionStep::Kind::NewWord;
}

void CorrectionCommands::Reset() {
    session.Reset();
    ShowNoWords();
}

void CorrectionCommands::ShowNoWords() {
    NewSpellControls& c = parts_.controls;
    parts_.suggestions.Clear();
    c.lstNID.Clear();
    UpdateCounter();
    c.txtChgTo.SetText({});
    c.lblNID.SetText({});
    UpdateButtons();
}

void CorrectionCommands::ChangeAll() {
    const std::size_t count =
        session.CurrentIndex() ? session.OccurrencesOf(*session.CurrentIndex()) : 0;
    const SessionStep step = session.ChangeAll(parts_.controls.txtChgTo.Text());
    Run(step);
    if (step.kind != SessionStep::Kind::Nothing && count > 1) {
        parts_.status.Say(
            Filled(LoadResText(parts_.program.state, text_id::kChanged), {std::to_wstring(count)}));
    }
}

void CorrectionCommands::AddAll(AddIndex index) {
    ProgressWindow progress(parts_.program.state, parts_.theme, parts_.window(),
                            ProgressWindow::Appear::AtOnce);
    parts_.running(&progress);
    const std::size_t count = session.Words().size();
    const SessionStep step = session.AddAll(index, progress);
    parts_.running(nullptr);
    progress.Hide();
    Run(step);
    const std::size_t added = count - session.Words().size();
    if (step.kind == SessionStep::Kind::Nothing || added == 0) return;
    parts_.status.Say(
        Filled(LoadResText(parts_.program.state, text_id::kAddedWords), {std::to_wstring(added)}));
}

void CorrectionCommands::UndoInDictionary() {
    if (parts_.status.Offered() == StatusLine::Undo::LastRemoval) {
        UndoRemoval();
    } else {
        UndoLastAdd();
    }
}

void CorrectionCommands::UndoLastAdd() {
    const std::optional<AddedWord> added = session.LastAdded();
    const SessionStep step = session.UndoLastAdd();
    Run(step);
    if (added && !step.failure && step.inserted) {
        parts_.status.Say(Sentence(text_id::kTookOutOfMain, text_id::kTookOut,
                                   added->index == AddIndex::Main, added->word, added->file));
    }
}

void CorrectionCommands::RemoveSuggestion() {
    const std::wstring word = parts_.suggestions.SelectedSuggestion();
    if (word.empty()) return;
    const Result<WordRemoval::Outcome> outcome = removal_.Remove(word);
    if (!outcome) return ShowError(text_id::kCannotWriteDictionary, outcome.error());
    if (*outcome == WordRemoval::Outcome::Declined) return;
    parts_.suggestions.RemoveSelected();
    if (*outcome == WordRemoval::Outcome::NotFound) {
        return parts_.status.Say(
            Filled(LoadResText(parts_.program.state, text_id::kNotRemoved), {word}));
    }
    const RemovedWord& removed = *removal_.Last();
    parts_.status.Say(Sentence(text_id::kRemovedFromMain, text_id::kRemoved, removed.from_main,
                               removed.word, removed.file),
                      StatusLine::Undo::LastRemoval);
}

void CorrectionCommands::UndoRemoval() {
    const std::optional<RemovedWord> removed = removal_.Last();
    if (!removed) return;
    if (const Result<void> put_back = removal_.PutBack(); !put_back) {
        return ShowError(text_id::kCannotWriteDictionary, put_back.error());
    }
    parts_.suggestions.Refill();
    parts_.status.Say(Sentence(text_id::kPutBackIntoMain, text_id::kPutBack, removed->from_main,
                               removed->word, removed->file));
}

std::wstring CorrectionCommands::Sentence(int main_text, int other_text, bool is_main,
                                          std::wstring_view word, const Path& file) const {
    return Filled(LoadResText(parts_.program.state, is_main ? main_text : other_text),
                  {word, TextFromPath(file.filename())});
}

void CorrectionCommands::SelectWord(int index) {
    if (index >= 0) Run(session.SelectWord(static_cast<std::size_t>(index)));
}

void CorrectionCommands::Run(const SessionStep& step) {
    if (step.failure) ShowError(text_id::kCannotWriteDictionary, *step.failure);
    if (step.kind == SessionStep::Kind::Nothing) return;
    UpdateList(step);
    if (step.recent_changed) ShowRecent();
    TellOfAdd(step);
    switch (step.kind) {
        case SessionStep::Kind::Nothing: break;
        case SessionStep::Kind::NextOccurrence: ShowSuggestions(); break;
        case SessionStep::Kind::NewWord: ShowWord(); break;
        case SessionStep::Kind::Finished:
            ShowNoWords();
            parts_.finished(step);
            break;
    }
    UpdateButtons();
}

void CorrectionCommands::UpdateList(const SessionStep& step) {
    NewSpellControls& c = parts_.controls;
    if (step.refill) {
        c.lstNID.Fill(session.Words());
    } else {
        if (step.removed) c.lstNID.RemoveAt(static_cast<int>(*step.removed));
        if (step.inserted) {
            c.lstNID.Insert(static_cast<int>(*step.inserted), session.Words()[*step.inserted]);
        }
    }
    // The numbers of occurrences may have changed with the text.
    c.lstNID.Redraw();
    UpdateCounter();
}

void CorrectionCommands::ShowWord() {
    NewSpellControls& c = parts_.controls;
    c.lblNID.SetText(session.CurrentWord());
    if (const auto index = session.CurrentIndex()) c.lstNID.Select(static_cast<int>(*index));
    ShowSuggestions();
    TellScreenReader();
}

void CorrectionCommands::ShowSuggestions() {
    parts_.suggestions.FillSuggestions(session.CurrentWord(), SuggestionPane::SkipListed::No,
                                       parts_.program.settings.SortBy);
    // Whoever types goes on typing: over the suggestion, not behind it.
    if (parts_.controls.txtChgTo.HasFocus()) parts_.controls.txtChgTo.SelectAll();
}

void CorrectionCommands::TellScreenReader() {
    // The keyboard stays where it is, so a reader would not learn of the next word by itself.
    const NewSpellControls& c = parts_.controls;
    const LONG child = c.lstNID.Selected() + 1;
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, c.lblNID.Handle(), OBJID_WINDOW, CHILDID_SELF);
    NotifyWinEvent(EVENT_OBJECT_SELECTION, c.lstNID.Handle(), OBJID_CLIENT, child);
    NotifyWinEvent(EVENT_OBJECT_FOCUS, c.lstNID.Handle(), OBJID_CLIENT, child);
}

void CorrectionCommands::TellOfAdd(const SessionStep& step) {
    if (!step.added) {
        parts_.status.Clear();
        return;
    }
    const AddedWord& added = *step.added;
    const bool is_main = added.index == AddIndex::Main;
    if (added.already_there) {
        parts_.status.Say(Sentence(text_id::kAlreadyInMain, text_id::kAlreadyThere, is_main,
                                   added.word, added.file));
    } else {
        parts_.status.Say(
            Sentence(text_id::kAddedToMain, text_id::kAdded, is_main, added.word, added.file),
            StatusLine::Undo::LastAdd);
    }
}

void CorrectionCommands::UpdateCounter() {
    parts_.controls.lblNIL.SetText(session.NotFoundCaption());
}

void CorrectionCommands::UpdateButtons() {
    NewSpellControls& c = parts_.controls;
    const ButtonStates states = session.Buttons(c.txtChgTo.Text());
    c.cmdChange.SetEnabled(states.cmdChange);
    c.cmdChangeAll.SetEnabled(states.cmdChangeAll);
    c.cmdIgnore.SetEnabled(states.cmdIgnore);
    c.cmdIgnoreAll.SetEnabled(states.cmdIgnoreAll);
    for (Button& button : c.cmdAdd) button.SetEnabled(states.cmdAdd);
    for (Button& button : c.cmdAddAll) button.SetEnabled(states.cmdAddAll);
    c.cmdSuggestions.SetEnabled(states.cmdSuggestions);
}

void CorrectionCommands::ShowRecent() {
    parts_.controls.cboChgTo.Fill(recent.Items());
    parts_.controls.cboChgTo.SetEnabled(!recent.Items().empty());
}

void CorrectionCommands::Announce(CompletionNotice notice) {
    const Program& program = parts_.program;
    if (notice == CompletionNotice::PlaySound) {
        parts_.desktop.sound.Play(program.settings.Confirmation);
    } else if (notice == CompletionNotice::ShowMessage) {
        const std::wstring text = LoadResText(program.state, text_id::kCheckComplete);
        program.ui.ShowMessage(text, text, MessageIcon::Information, MessageButtons::Ok);
    }
}

void CorrectionCommands::ShowError(int text, const Error& error) {
    std::wstring message = LoadResText(parts_.program.state, text);
    if (!error.where.empty()) message += L"\r\n\r\n" + TextFromPath(error.where);
    if (!error.what.empty()) message += L"\r\n" + error.what + L".";
    parts_.program.ui.ShowMessage(message, FromUtf8(WORDHAWK_TITLE), MessageIcon::Exclamation,
                                  MessageButtons::Ok);
}

bool CorrectionCommands::PutOnClipboard(const std::wstring& text) {
    const bool done = parts_.desktop.clipboard.SetPlainText(text);
    if (!done) ShowError(text_id::kClipboardInUse, {});
    return done;
}

void CorrectionCommands::CopyData() {
    if (!parts_.controls.document.Empty()) {
        // The whole text is safe there as plain text; a rich one is not.
        DocumentPane& document = parts_.controls.document;
        if (PutOnClipboard(document.Text()) && !document.IsRich()) document.MarkSaved();
    } else {
        CopyWord();
    }
}

void CorrectionCommands::CopyWord() {
    const std::wstring text = parts_.controls.txtChgTo.Text();
    if (!text.empty()) PutOnClipboard(text);
}

void CorrectionCommands::TakeWord() {
    NewSpellControls& c = parts_.controls;
    const std::wstring selected = c.document.SelectedText();
    std::wstring_view word = selected;
    // As in a check: what the rules pass over there (words in capitals, with digits) empties the
    // box here. Taking such a word as it stands would be the other reading.
    modSubs::CleanWord(word, SplitRules::From(parts_.program.state, parts_.program.settings));
    c.txtChgTo.SetText(MatchCase(word, selected));
}

}  // namespace wordhawk
