#pragma once

#include "engine/program.h"
#include "engine/session/spell_session.h"
#include "engine/session/word_removal.h"
#include "ui/desktop.h"
#include "ui/dialogs/progress_window.h"
#include "ui/framework/theme.h"
#include "ui/main_window/new_spell_controls.h"
#include "ui/main_window/status_line.h"
#include "ui/main_window/suggestion_pane.h"

#include <functional>

namespace wordhawk {

/// The correction commands as the buttons give them: each hands its job to the session and shows
/// what came of it in the lists, labels and buttons.
class CorrectionCommands {
  public:
    struct Parts {
        Program& program;
        Desktop& desktop;
        NewSpellControls& controls;
        SuggestionPane& suggestions;
        StatusLine& status;
        const Theme& theme;
        /// Owner of boxes and of the progress window.
        std::function<HWND()> window;
        /// A command lets messages through from now on; null: it is over.
        std::function<void(ProgressWindow*)> running;
        /// The list was worked off: to be announced.
        std::function<void(const SessionStep&)> finished;
    };
    explicit CorrectionCommands(Parts parts);

    SpellSession session;
    RecentChanges recent;

    /// Takes over the words of a check; true when there is one to correct.
    bool Begin(std::vector<std::wstring> words);
    /// Empties the three lists, the change-to box and the word.
    void Reset();

    void Change() { Run(session.Change(parts_.controls.txtChgTo.Text())); }
    void ChangeAll();
    void Ignore() { Run(session.Ignore()); }
    void IgnoreAll() { Run(session.IgnoreAll()); }
    void Add(AddIndex index) { Run(session.Add(index)); }
    void AddTo(const std::wstring& custom_name) { Run(session.AddTo(custom_name)); }
    void AddAll(AddIndex index);
    /// Takes the selected suggestion out of its dictionary and off the list.
    void RemoveSuggestion();
    /// Takes the change of a dictionary back that the status line told of.
    void UndoInDictionary();
    void SelectWord(int index);
    /// Copies the document, else the change-to box.
    void CopyData();
    void CopyWord();
    /// Takes the selected text of the document into the change-to box.
    void TakeWord();

    void UpdateButtons();
    void UpdateCounter();
    /// The recent replacements in their box.
    void ShowRecent();
    /// Plays or shows the end of a check.
    void Announce(CompletionNotice notice);
    /// Says what went wrong with which file.
    void ShowError(int text, const Error& error);
    /// False when the clipboard is not to be had; the user knows.
    bool PutOnClipboard(const std::wstring& text);

  private:
    void Run(const SessionStep& step);
    void UpdateList(const SessionStep& step);
    void ShowWord();
    void ShowSuggestions();
    void ShowNoWords();
    void TellOfAdd(const SessionStep& step);
    void UndoLastAdd();
    void UndoRemoval();
    /// One of two texts, for the main dictionary and (with %2 for its name) for another.
    std::wstring Sentence(int main_text, int other_text, bool is_main, std::wstring_view word,
                          const Path& file) const;
    void TellScreenReader();

    Parts parts_;
    WordRemoval removal_;
};

}  // namespace wordhawk
