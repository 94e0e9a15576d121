#pragma once

#include "dict/dictionary_store.h"
#include "engine/suggest/suggestions.h"
#include "engine/suggest/wide_search.h"
#include "platform/ui_services.h"
#include "ui/framework/subclass.h"
#include "ui/main_window/new_spell_controls.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace wordhawk {

/// The suggestions and their scores, two lists that always show the same rows; the change-to box
/// that a suggestion is taken into; and the sliders that steer the search.
class SuggestionPane {
  public:
    struct Parts {
        NewSpellControls& controls;
        DictionaryStore& dictionaries;
        UiServices& ui;
        /// Makes the index of the whole dictionary ready; false when the user stopped that.
        std::function<bool(WideSearch&)> prepare;
    };
    explicit SuggestionPane(const Parts& parts) : parts_(parts) {}

    /// Once the controls are there.
    void Attach();

    enum class SkipListed { No, Yes };
    /// Shows suggestions for a word and takes the best one. A word of one letter leaves all as it
    /// was.
    void FillSuggestions(std::wstring_view word, SkipListed skip_listed, std::uint8_t search_mode);
    /// Shows suggestions from the whole dictionary for the word that the lists are for. What was
    /// typed into the change-to box stays there.
    void SearchEverywhere();
    /// Whether every word gets its suggestions from the whole dictionary; kept in the settings.
    void SetAlwaysEverywhere(bool always);
    /// Shows what the settings say of that.
    void ShowUsualReach();
    /// Lets the sliders' tips and the command say where the suggestions shown come from.
    void ShowReach();
    void Clear();
    /// Writes the number of suggestions into its label, as the list is now.
    void ShowCount();

    /// Takes the selected suggestion into the change-to box, in the case of the document's word.
    void TakeSelected();
    /// The n-th suggestion, from 1, as a click on it.
    void Pick(int number);

    /// Searches again for the word that the lists are for, as before but by the rules as they are
    /// now. What the user chose or typed stays in the change-to box.
    void Refill() { Refill(reach_); }
    /// Removes the selected suggestion from the lists.
    void RemoveSelected();
    bool HasSelection() const { return parts_.controls.lstSug.Selected() >= 0; }
    /// Empty when none is selected, or there are none.
    std::wstring SelectedSuggestion() const;
    /// The suggestions, a line each.
    std::wstring WholeList() const;

    /// Sliders: read from the settings at load, kept in them as they move, written at unload.
    void ShowSliders();
    void hsScore_Change();
    void hsdiversity_Change();
    void SaveSliders();
    /// A slider was let go: the lists are filled anew if it was moved.
    void SliderReleased();

    /// Selects the suggestion under a point of the screen and takes it.
    void SelectUnder(POINT screen);
    /// The text of the change-to box changed: a suggestion that does not stand there is not
    /// selected.
    void txtChgTo_Change();

    void lstSco_Click();
    void lstSco_DblClick();

    /// Why the suggestion of a row scored what it did, for its tool tip.
    std::wstring Explanation(int row) const;

  private:
    /// Where suggestions come from: the files of the word's beginning, or all.
    enum class Reach { Beginning, Everywhere };
    Reach UsualReach() const;
    bool Ready(Reach reach);
    void Refill(Reach reach);
    void Fill(Reach reach, const std::wstring& word, SkipListed skip_listed,
              const SuggestionRules& rules);
    void ShowNone();
    void Select(int index);
    void SetCount(int count);
    /// What a suggestion would put into the change-to box; none for the placeholder.
    std::optional<std::wstring> TextToTake(int index) const;
    void ShowTipUnderPointer(LPARAM position);
    void FollowScroll(const ListBox& leader, ListBox& follower);
    bool IsPlaceholder(int index) const;
    std::wstring PaddedScore(std::int32_t percent) const;

    Parts parts_;
    Subclass suggestions_subclass_;
    Subclass scores_subclass_;
    /// Made when it is wanted first.
    std::unique_ptr<WideSearch> wide_;
    Reach reach_ = Reach::Beginning;
    /// The user did not want to wait for the index: not again until asked for.
    bool declined_ = false;
    bool following_ = false;
    int tip_row_ = -1;
    /// The word that the suggestions shown are for, and the sliders that they were searched with.
    std::wstring searched_;
    int searched_score_ = 0;
    int searched_diversity_ = 0;
};

}  // namespace wordhawk
