#pragma once

#include "app/delimiter_flags.h"
#include "app/progress.h"
#include "dict/custom_words.h"
#include "engine/session/replacements.h"
#include "engine/session/spell_document.h"
#include "engine/session/word_positions.h"
#include "platform/ui_services.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// The two buttons of an Add pair: index 0 and 1 of cmdAdd and cmdAddAll.
enum class AddIndex { Main = 0, Custom = 1 };

/// How the end of a check is announced.
enum class CompletionNotice { None, PlaySound, ShowMessage };

/// A word that an Add command put into a dictionary.
struct AddedWord {
    std::wstring word;
    AddIndex index = AddIndex::Main;
    Path file;
    /// The file had the word before, so nothing was added and there is nothing to undo.
    bool already_there = false;
};

/// What a command did and what the window is to show now. The document is changed and its selection
/// set already; the lists, labels and boxes are the window's.
struct SessionStep {
    enum class Kind {
        Nothing,         ///< refused or declined; everything is as it was
        NextOccurrence,  ///< another occurrence of the same word is selected: match the suggestion
                         ///< anew
        NewWord,   ///< CurrentIndex() and CurrentWord() changed: show it and search suggestions
        Finished,  ///< clear lstSco, lstSug, lstNID, txtChgTo and lblNID, then `notice`, then
                   ///< `close`
    };
    Kind kind = Kind::Nothing;
    /// Entry of lstNID that left the list (index before it left).
    std::optional<std::size_t> removed;
    /// Entry of lstNID that came back (index it has now); comes after `removed`.
    std::optional<std::size_t> inserted;
    /// The list changed in more than one place: fill lstNID from Words().
    bool refill = false;
    /// RecentChanges has a new first entry.
    bool recent_changed = false;
    CompletionNotice notice = CompletionNotice::None;
    /// Ask the timer to close the window.
    bool close = false;
    /// The word that Add put into a dictionary; UndoLastAdd can take it out again.
    std::optional<AddedWord> added;
    /// A dictionary could not be read or written. A word that was to be added is in the list still.
    std::optional<Error> failure;
};

/// Enabling of the correction buttons.
struct ButtonStates {
    bool cmdChange = false;
    bool cmdChangeAll = false;
    bool cmdIgnore = false;
    bool cmdIgnoreAll = false;
    bool cmdAdd = false;     ///< both of the pair
    bool cmdAddAll = false;  ///< both of the pair
    bool cmdSuggestions = false;
    bool operator==(const ButtonStates&) const = default;
};

/// The walk through the unknown words of a document: the not-in-dictionary list, the word under
/// correction, and the commands on it. It knows no window; it changes the document through
/// SpellDocument, asks through UiServices, and says in a SessionStep what is to be shown.
class SpellSession {
  public:
    /// All must outlive the session.
    struct Parts {
        SpellDocument& document;
        DictionaryStore& dictionaries;
        const DelimiterFlagStore& flags;
        RecentChanges& recent;
        UiServices& ui;
    };
    explicit SpellSession(const Parts& parts) : parts_(parts) {}

    /// Takes over the words that a check pass found and goes to the one to correct first. No words:
    /// Kind::Nothing (nothing was finished, so no notice and no close).
    SessionStep Begin(std::vector<std::wstring> words);
    /// Empties the list without finishing.
    void Reset();

    /// Entries of lstNID, in their order.
    const std::vector<std::wstring>& Words() const { return words_; }
    /// Caption of lblNID; empty when no word is under correction.
    const std::wstring& CurrentWord() const { return current_; }
    /// Its entry in lstNID.
    std::optional<std::size_t> CurrentIndex() const { return current_index_; }
    TextOffset OccurrenceStart() const { return occurrence_start_; }
    /// Where the next occurrence is searched; kNotFound when no further one is to be searched.
    TextOffset SearchPosition() const { return search_position_; }
    /// How often an entry of the list occurs in the document, as of the last command (so drawing
    /// the list never searches the text).
    std::size_t OccurrencesOf(std::size_t index) const;
    /// Caption of lblNIL.
    std::wstring NotFoundCaption() const;
    /// `change_to` is the text of txtChgTo. Ask again whenever that or the word changes.
    ButtonStates Buttons(std::wstring_view change_to) const;

    SessionStep Change(std::wstring_view replacement);
    SessionStep ChangeAll(std::wstring_view replacement);
    SessionStep Ignore();
    SessionStep IgnoreAll();
    SessionStep Add(AddIndex index);
    /// Adds to the custom dictionary of that file name; never asks.
    SessionStep AddTo(std::wstring_view custom_name);
    /// Adds every word of the list, which ends the check. When `progress` or a failure stops it,
    /// the words that are still unknown stay in the list.
    SessionStep AddAll(AddIndex index, Progress& progress);
    /// The user chose an entry of lstNID: its first occurrence is selected.
    SessionStep SelectWord(std::size_t index);

    /// The word that UndoLastAdd would take out again.
    const std::optional<AddedWord>& LastAdded() const { return last_added_; }
    /// Takes the word that was added last out of its dictionary, back into the list at its place,
    /// and under correction again.
    SessionStep UndoLastAdd();

    /// Whether the end of the check is announced (the check pass sets this from its argument).
    void SetCompletionNotice(bool wanted) { notice_wanted_ = wanted; }
    /// How: by the sound of setting "Confirmation", or by a message when there is none.
    CompletionNotice Notice() const;

  private:
    void FillList(std::vector<std::wstring> words);
    void Sync();
    void ReplaceSelected(std::wstring_view replacement);
    void FollowReplacement(std::span<const std::size_t> starts, std::size_t removed,
                           std::wstring_view replacement, std::size_t size_before);
    void SelectOccurrence(TextOffset start);
    std::optional<std::size_t> RemoveCurrentEntry();
    SessionStep ContinueOrIgnoreAll();
    SessionStep SelectNextWord();
    SessionStep Show(std::size_t index);
    SessionStep ResetFinished();
    bool Confirmed(AddIndex index) const;
    SessionStep AddCurrent(AddIndex index, AddTarget target, Path path);
    void KeepUnknownWords(AddIndex index);

    Parts parts_;
    std::vector<std::wstring> words_;
    std::vector<WordPositions::Id> ids_;  ///< parallel to words_
    WordPositions positions_;
    std::optional<std::uint64_t> scanned_revision_;
    std::wstring current_;
    std::optional<std::size_t> current_index_;
    TextOffset occurrence_start_ = kNotFound;
    TextOffset search_position_ = kNotFound;
    bool notice_wanted_ = false;
    std::optional<AddedWord> last_added_;
    std::size_t last_added_index_ = 0;
};

}  // namespace wordhawk
