#include "ui/main_window/suggestion_pane.h"

#include "app/modRegs.h"
#include "dict/phonetic_key.h"
#include "engine/session/captions.h"
#include "engine/suggest/cLS.h"
#include "engine/suggest/house_style.h"
#include "engine/suggest/suggestion_case.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"

#include <algorithm>

namespace wordhawk {

void SuggestionPane::Attach() {
    NewSpellControls& c = parts_.controls;
    suggestions_subclass_.Install(
        c.lstSug.Handle(),
        [this](UINT message, WPARAM, LPARAM lparam) -> std::optional<LRESULT> {
            if (message == WM_MOUSEMOVE) ShowTipUnderPointer(lparam);
            return {};
        },
        [this, &c](UINT message) {
            if (message != WM_PAINT && message != WM_MOUSEMOVE) FollowScroll(c.lstSug, c.lstSco);
            // A press on the entry that is selected already changes no selection.
            if (message == WM_LBUTTONDOWN) TakeSelected();
        });
    scores_subclass_.Install(c.lstSco.Handle(), {}, [this, &c](UINT message) {
        if (message != WM_PAINT && message != WM_MOUSEMOVE) FollowScroll(c.lstSco, c.lstSug);
    });
}

void SuggestionPane::ShowTipUnderPointer(LPARAM position) {
    ListBox& list = parts_.controls.lstSug;
    const POINT point{static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
    const int row = list.At(point).value_or(-1);
    if (row == tip_row_) return;
    tip_row_ = row;
    list.SetToolTipText(Explanation(row));
}

// A list box tells nobody when it scrolls, whatever made it scroll; so after every message.
void SuggestionPane::FollowScroll(const ListBox& leader, ListBox& follower) {
    if (following_) return;
    following_ = true;
    const int top = leader.Top();
    if (follower.Top() != top && top < follower.Count()) follower.SetTop(top);
    following_ = false;
}

void SuggestionPane::FillSuggestions(std::wstring_view word, SkipListed skip_listed,
                                     std::uint8_t search_mode) {
    if (word.size() < 2) return;
    SuggestionRules rules = SuggestionRules::From(parts_.dictionaries.CurrentSettings());
    rules.search_mode = search_mode;
    const Reach reach = Ready(UsualReach()) ? UsualReach() : Reach::Beginning;
    Fill(reach, std::wstring(word), skip_listed, rules);
}

SuggestionPane::Reach SuggestionPane::UsualReach() const {
    const bool always = parts_.dictionaries.CurrentSettings().WideSearch != 0;
    return always && !declined_ ? Reach::Everywhere : Reach::Beginning;
}

bool SuggestionPane::Ready(Reach reach) {
    if (reach == Reach::Beginning) return true;
    if (!wide_) wide_ = std::make_unique<WideSearch>(parts_.dictionaries);
    declined_ = !parts_.prepare(*wide_);
    return !declined_;
}

void SuggestionPane::Fill(Reach reach, const std::wstring& word, SkipListed skip_listed,
                          const SuggestionRules& rules) {
    const Hourglass busy(parts_.ui);
    NewSpellControls& c = parts_.controls;
    const Suggestions found = AsInTheText(parts_.dictionaries, word, [&](std::wstring_view form) {
        return reach == Reach::Everywhere ? wide_->Find(form)
                                          : FindSuggestions(parts_.dictionaries, form, rules);
    });
    searched_ = word;
    searched_score_ = rules.score_threshold;
    searched_diversity_ = rules.diversity;
    reach_ = reach;
    ShowReach();

    following_ = true;
    // A tip on the screen told of a suggestion for another word.
    tip_row_ = -1;
    c.lstSug.SetToolTipText({});
    c.lstSug.Clear();
    c.lstSco.Clear();
    for (const Suggestion& suggestion : found.list) {
        if (skip_listed == SkipListed::Yes && c.lstSug.FindExact(suggestion.word) >= 0) continue;
        const int at = c.lstSug.Append(suggestion.word, suggestion.key);
        if (c.lstSco.Insert(at, PaddedScore(suggestion.score)) < 0) break;
    }
    following_ = false;
    if (found.best < 0) {
        ShowNone();
        // Its change handler disables the change commands.
        c.txtChgTo.SetText({});
        return;
    }
    const int best = c.lstSug.FindExact(found.list[static_cast<std::size_t>(found.best)].word);
    Select(best);
    c.lstSug.SetTop(std::max(best - 1, 0));
    TakeSelected();
    SetCount(c.lstSug.Count());
}

void SuggestionPane::SearchEverywhere() {
    if (searched_.empty() || !Ready(Reach::Everywhere)) return;
    NewSpellControls& c = parts_.controls;
    const std::wstring typed = c.lstSug.Selected() < 0 ? c.txtChgTo.Text() : std::wstring();
    Fill(Reach::Everywhere, searched_, SkipListed::No,
         SuggestionRules::From(parts_.dictionaries.CurrentSettings()));
    if (!typed.empty()) c.txtChgTo.SetText(typed);
    // Whoever types goes on typing: over the suggestion, not behind it.
    if (c.txtChgTo.HasFocus()) c.txtChgTo.SelectAll();
}

void SuggestionPane::SetAlwaysEverywhere(bool always) {
    Settings& settings = parts_.dictionaries.CurrentSettings();
    settings.WideSearch = always ? 1 : 0;
    modRegs::SaveSetting(parts_.dictionaries.State(), settings, L"WideSearch");
    ShowUsualReach();
    if (!searched_.empty()) Refill(UsualReach());
}

void SuggestionPane::ShowUsualReach() {
    declined_ = false;
    parts_.controls.chkEverywhere.SetChecked(UsualReach() == Reach::Everywhere);
}

void SuggestionPane::ShowReach() {
    NewSpellControls& c = parts_.controls;
    const ProgramState& state = parts_.dictionaries.State();
    const bool everywhere = reach_ == Reach::Everywhere && !searched_.empty();
    const std::wstring none =
        everywhere ? L". " + modLoadRes::LoadResText(state, text_id::kSlidersDoNotApply) + L"."
                   : std::wstring();
    c.hsScore.SetToolTipText(modLoadRes::LoadResText(state, text_id::kTipScore) + none);
    c.hsdiversity.SetToolTipText(modLoadRes::LoadResText(state, text_id::kTipDiversity) + none);
    c.cmdEverywhere.SetEnabled(!searched_.empty() && !everywhere);
}

void SuggestionPane::ShowNone() {
    parts_.controls.lstSug.Append(kNoSuggestions);
    parts_.controls.lstSco.Append(kNoScore);
    SetCount(0);
}

void SuggestionPane::Clear() {
    NewSpellControls& c = parts_.controls;
    c.lstSco.Clear();
    c.lstSug.Clear();
    searched_.clear();
    ShowReach();
    SetCount(0);
}

void SuggestionPane::Select(int index) {
    parts_.controls.lstSco.Select(index);
    parts_.controls.lstSug.Select(index);
}

void SuggestionPane::SetCount(int count) {
    parts_.controls.lblCnt.SetText(
        captions::SuggestionCount(parts_.dictionaries.State(), static_cast<std::size_t>(count)));
}

void SuggestionPane::ShowCount() {
    const int count = parts_.controls.lstSug.Count();
    SetCount(count == 1 && IsPlaceholder(0) ? 0 : count);
}

bool SuggestionPane::IsPlaceholder(int index) const {
    return parts_.controls.lstSug.Item(index) == kNoSuggestions;
}

std::wstring SuggestionPane::PaddedScore(std::int32_t percent) const {
    const HWND list = parts_.controls.lstSco.Handle();
    const HDC device = GetDC(list);
    const HGDIOBJ before =
        SelectObject(device, reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0)));
    std::wstring padded =
        captions::PadScoreText(captions::ScoreText(percent), [device](std::wstring_view text) {
            SIZE size{};
            GetTextExtentPoint32W(device, text.data(), static_cast<int>(text.size()), &size);
            return static_cast<int>(size.cx);
        });
    SelectObject(device, before);
    ReleaseDC(list, device);
    return padded;
}

std::wstring SuggestionPane::SelectedSuggestion() const {
    const int index = parts_.controls.lstSug.Selected();
    return IsPlaceholder(index) ? std::wstring() : parts_.controls.lstSug.Item(index);
}

void SuggestionPane::TakeSelected() {
    NewSpellControls& c = parts_.controls;
    const int index = c.lstSug.Selected();
    const std::optional<std::wstring> text = TextToTake(index);
    // What cannot be taken is not selected either.
    if (!text) return Select(-1);
    c.lstSco.Select(index);
    c.txtChgTo.SetText(*text);
}

std::optional<std::wstring> SuggestionPane::TextToTake(int index) const {
    if (index < 0) return std::nullopt;
    const auto take = reach_ == Reach::Everywhere ? TakeWideSuggestion : TakeSuggestion;
    return take(parts_.controls.lstSug.Item(index), parts_.controls.document.SelectedText());
}

void SuggestionPane::txtChgTo_Change() {
    const int index = parts_.controls.lstSug.Selected();
    if (index >= 0 && TextToTake(index) != parts_.controls.txtChgTo.Text()) Select(-1);
}

void SuggestionPane::SelectUnder(POINT screen) {
    ListBox& list = parts_.controls.lstSug;
    ScreenToClient(list.Handle(), &screen);
    const std::optional<int> row = list.At(screen);
    if (!row) return;
    Select(*row);
    TakeSelected();
}

void SuggestionPane::Pick(int number) {
    if (number < 1 || number > parts_.controls.lstSug.Count() || IsPlaceholder(number - 1)) return;
    Select(number - 1);
    TakeSelected();
}

void SuggestionPane::lstSco_Click() {
    Select(parts_.controls.lstSco.Selected());
    TakeSelected();
}

void SuggestionPane::lstSco_DblClick() {
    lstSco_Click();
    parts_.controls.lstSug.SetFocus();
}

void SuggestionPane::RemoveSelected() {
    NewSpellControls& c = parts_.controls;
    const int index = c.lstSug.Selected();
    if (index < 0) return;
    c.lstSug.RemoveAt(index);
    c.lstSco.RemoveAt(index);
    if (c.lstSug.Count() == 0) {
        ShowNone();
    } else {
        SetCount(c.lstSug.Count());
    }
}

void SuggestionPane::Refill(Reach reach) {
    if (searched_.empty()) return;
    NewSpellControls& c = parts_.controls;
    const int selected = c.lstSug.Selected();
    const std::wstring chosen = selected < 0 ? std::wstring() : c.lstSug.Item(selected);
    const std::wstring typed = c.txtChgTo.Text();
    // Whose list is empty has nothing chosen, and nothing typed unless there is something.
    const bool keep = selected < 0 && !typed.empty();
    Fill(Ready(reach) ? reach : Reach::Beginning, searched_, SkipListed::No,
         SuggestionRules::From(parts_.dictionaries.CurrentSettings()));
    if (keep) c.txtChgTo.SetText(typed);
    if (const int again = chosen.empty() ? -1 : c.lstSug.FindExact(chosen); again >= 0) {
        Select(again);
        TakeSelected();
    }
}

void SuggestionPane::SliderReleased() {
    const Settings& settings = parts_.dictionaries.CurrentSettings();
    if (searched_.empty() || reach_ == Reach::Everywhere ||
        (settings.ScoreValue == searched_score_ && settings.Diversity == searched_diversity_)) {
        return;
    }
    Refill();
}

std::wstring SuggestionPane::WholeList() const {
    std::wstring lines;
    for (int i = 0; i < parts_.controls.lstSug.Count(); ++i) {
        lines += parts_.controls.lstSug.Item(i) + L"\r\n";
    }
    return lines;
}

void SuggestionPane::ShowSliders() {
    const Settings& settings = parts_.dictionaries.CurrentSettings();
    parts_.controls.hsScore.SetValue(settings.ScoreValue);
    parts_.controls.hsdiversity.SetValue(settings.Diversity);
    hsScore_Change();
    hsdiversity_Change();
}

void SuggestionPane::hsScore_Change() {
    const int value = parts_.controls.hsScore.Value();
    parts_.controls.lblScore.SetText(captions::ScoreRange(parts_.dictionaries.State(), value));
    parts_.dictionaries.CurrentSettings().ScoreValue = value;
}

void SuggestionPane::hsdiversity_Change() {
    const int value = parts_.controls.hsdiversity.Value();
    parts_.controls.lbldiversity.SetText(captions::Diversity(value));
    parts_.dictionaries.CurrentSettings().Diversity = value;
}

void SuggestionPane::SaveSliders() {
    const ProgramState& state = parts_.dictionaries.State();
    const Settings& settings = parts_.dictionaries.CurrentSettings();
    for (const std::wstring_view key : {L"ScoreValue", L"Diversity", L"ExtraDiversity"}) {
        modRegs::SaveSetting(state, settings, key);
    }
}

std::wstring SuggestionPane::Explanation(int row) const {
    const NewSpellControls& c = parts_.controls;
    if (row < 0 || row >= c.lstSug.Count() || IsPlaceholder(row) || searched_.empty()) return {};
    const bool everywhere = reach_ == Reach::Everywhere;
    const bool swaps = everywhere || parts_.dictionaries.CurrentSettings().ExtraDiversity != 0;
    const auto distance = std::to_wstring(cLS().LevenshteinDistance(
        searched_, c.lstSug.Item(row), swaps ? Transposition::OneEdit : Transposition::NotCounted));
    const std::wstring padded = c.lstSco.Item(row);
    const std::wstring_view score = Trim(padded).substr(0, Trim(padded).find(L'%'));
    const ProgramState& state = parts_.dictionaries.State();
    if (everywhere) {
        return Filled(modLoadRes::LoadResText(state, text_id::kWideSuggestionTip),
                      {distance, score});
    }
    const std::wstring key = std::to_wstring(c.lstSug.Data(row));
    const std::wstring own_key =
        std::to_wstring(GetPhoneticKey(Lower(searched_), parts_.dictionaries.Page()));
    return Filled(modLoadRes::LoadResText(state, text_id::kSuggestionTip),
                  {distance, score, key, own_key});
}

}  // namespace wordhawk
