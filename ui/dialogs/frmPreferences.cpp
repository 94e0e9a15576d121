#include "ui/dialogs/frmPreferences.h"

#include "lang/apply_language.h"
#include "lang/delimiter_names.h"
#include "lang/modLoadRes.h"
#include "lang/modRegionLocales.h"
#include "lang/text_ids.h"
#include "platform/modSect.h"
#include "ui/dialogs/dialog_ids.h"
#include "ui/dialogs/frmCusDics.h"
#include "ui/dialogs/sound_picker.h"
#include "ui/framework/themed_drawing.h"
#include "ui/resource.h"

#include <algorithm>

namespace wordhawk {

using modLoadRes::LoadResText;

frmPreferences::frmPreferences(Program& program, Desktop& desktop)
    : program_(program), desktop_(desktop) {}

Dialog::Look frmPreferences::WantedLook() const {
    Look look = FormDialog::WantedLook();
    look.class_name = kClassName;
    look.icon_id = WORDHAWK_ICON;
    return look;
}

void frmPreferences::MakeControls() {
    CreateAll(handle_, Tips());
    sound_mouse_.Install(lblSnd.Handle(),
                         [this](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
                             if (message != WM_RBUTTONDOWN) return {};
                             lblSnd_MouseDown();
                             return 0;
                         });
    delimiter_mouse_.Install(
        lstCr.Handle(), [this](UINT message, WPARAM, LPARAM position) -> std::optional<LRESULT> {
            if (message == WM_MOUSEMOVE) TellDelimiterUnderPointer(position);
            return {};
        });
}

void frmPreferences::Form_Load() {
    ApplyCaptions();
    const Preferences now = LoadPreferences(program_.state, program_.settings, program_.flags);
    ShowOptions(now);
    FillLanguages();
    FillDelimiterList(now);
    ShowDictionaries();
    lblTab_Click(now.tab);
    loading_ = false;
}

void frmPreferences::ApplyCaptions() {
    const ProgramState& state = program_.state;
    SetTag(std::to_wstring(text_id::kPreferences));
    SetTextIds();
    ApplyLanguage(state, *this);
    constexpr int kTabTexts[] = {text_id::kSpelling, text_id::kDisplay, text_id::kDelimiters,
                                 text_id::kDictionaries};
    for (std::size_t i = 0; i < lblTab.size(); ++i) {
        lblTab[i].SetText(LoadResText(state, kTabTexts[i], L"  ", L"   "));
    }
    cmdOK.SetText(LoadResText(state, text_id::kOk, L"&"));
    cmdCancel.SetText(LoadResText(state, text_id::kCancel, L"&"));
    cmdCusDicts.SetText(LoadResText(state, text_id::kDictionariesButton, {}, L"..."));
    cmdSnd.SetText(L"...");
}

void frmPreferences::ShowOptions(const Preferences& now) {
    for (std::size_t i = 0; i < chkPrefs.size(); ++i) {
        if (static_cast<int>(i) != Preferences::kNoOption) chkPrefs[i].SetChecked(now.options[i]);
    }
    for (std::size_t i = 0; i < chkWays.size(); ++i) chkWays[i].SetChecked(now.modern[i]);
    chkWays_Click();
    for (std::size_t i = 0; i < optST.size(); ++i) {
        optST[i].SetChecked(static_cast<int>(i) == now.sort_by);
    }
    optTTyp[0].SetChecked(!now.rich_clipboard);
    optTTyp[1].SetChecked(now.rich_clipboard);
    lblSnd.SetText(now.sound);
    EnableFormats();
}

void frmPreferences::FillLanguages() {
    languages_ = modRcLangs::FillLanguageList(program_.state);
    if (languages_.empty()) languages_.push_back({L"English", 1033});
    std::vector<std::wstring> names;
    for (const auto& language : languages_) names.push_back(language.name);
    cboLgs.Fill(names);
    const int in_force = NumberOrZero(program_.state.LanguageId);
    const std::wstring_view name =
        modRegionLocales::LanguageName(in_force, modRegionLocales::Want::EnglishName);
    // Of several countries with one language, the one in force.
    auto found = std::find_if(languages_.begin(), languages_.end(), [&](const auto& language) {
        return language.name == name && language.locale == in_force;
    });
    if (found == languages_.end()) {
        found = std::find_if(languages_.begin(), languages_.end(),
                             [&](const auto& language) { return language.name == name; });
    }
    if (found != languages_.end()) cboLgs.Select(static_cast<int>(found - languages_.begin()));
}

void frmPreferences::FillDelimiterList(const Preferences& now) {
    std::vector<std::wstring> names;
    for (int flag = 1; flag <= DelimiterFlagStore::kDelimiterCount; ++flag) {
        names.push_back(DelimiterName(program_.state, DelimiterCodeOfFlag(flag)));
    }
    lstCr.Fill(names);
    for (std::size_t i = 0; i < now.delimiters.size(); ++i) {
        lstCr.SetChecked(static_cast<int>(i), now.delimiters[i]);
    }
    // Each change above brings its entry into view.
    lstCr.SetTop(0);
}

void frmPreferences::SaveDelimiterList(Preferences& chosen) const {
    for (std::size_t i = 0; i < chosen.delimiters.size(); ++i) {
        chosen.delimiters[i] = lstCr.Checked(static_cast<int>(i));
    }
}

void frmPreferences::ShowDictionaries() {
    lstDicts.Fill(program_.settings.CustomDictionaries);
    lstDicts.Select(lstDicts.FindExact(program_.settings.CustomDic));
    lstDicts_Click();
}

// ---- events ----

void frmPreferences::lblTab_Click(int index) {
    tab_ = index;
    for (int i = 0; i < Preferences::kTabCount; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const bool shown = i == index;
        lblTab[at].SetChecked(shown);
        EnableWindow(fraDum[at].Handle(), shown);
        ShowWindow(fraDum[at].Handle(), shown ? SW_SHOW : SW_HIDE);
        lblTab[at].Redraw();
    }
}

void frmPreferences::chkPrefs_Click(int index) {
    if (index == Preferences::kSetClip) EnableFormats();
    if (index == Preferences::kWarnBeforeMainAdd) {
        StoreMainAddWarning(program_.flags, chkPrefs[7].Checked());
    }
}

void frmPreferences::chkModern_Click() {
    for (CheckBox& way : chkWays) way.SetChecked(chkModern.Checked());
}

void frmPreferences::chkWays_Click() {
    chkModern.SetChecked(std::all_of(chkWays.begin(), chkWays.end(),
                                     [](const CheckBox& way) { return way.Checked(); }));
}

void frmPreferences::EnableFormats() {
    const bool enabled = chkPrefs[Preferences::kSetClip].Checked();
    for (OptionButton& format : optTTyp) format.SetEnabled(enabled);
    for (const Label& line : linTTyp) line.Redraw();
}

void frmPreferences::cboLgs_Click() {
    const int chosen = cboLgs.Selected();
    if (loading_ || chosen < 0) return;
    const std::wstring wanted =
        std::to_wstring(languages_[static_cast<std::size_t>(chosen)].locale);
    const std::wstring before = program_.state.LanguageId;
    modSect::WriteSetting(modRegs::kSettingsSection, L"Language", wanted,
                          program_.state.SettingsFile);
    std::wstring in_force;
    {
        const Hourglass busy(desktop_.ui);
        in_force = program_.ChangeLanguage();
    }
    const bool missing = in_force != wanted;
    lblDis[1].SetVisible(missing);
    if (missing) desktop_.ui.Beep();
    if (program_.state.LanguageId != before) ApplyCaptions();
    Fit();
}

void frmPreferences::cmdSnd_Click() {
    const auto picked = PickSound(program_.state, desktop_, handle_, lblSnd.Text());
    if (picked) lblSnd.SetText(*picked);
}

void frmPreferences::lblSnd_MouseDown() { lblSnd.SetText({}); }

void frmPreferences::cmdDefaults_Click() {
    const std::string& standard = DelimiterFlagStore::DefaultFlags();
    for (int i = 0; i < lstCr.Count(); ++i) {
        lstCr.SetChecked(i, standard[static_cast<std::size_t>(i)] == '1');
    }
    lstCr.SetTop(0);
}

void frmPreferences::cmdCusDicts_Click() {
    frmCusDics manager(program_, desktop_);
    manager.ShowModal(handle_);
    ShowDictionaries();
}

void frmPreferences::lstDicts_Click() {
    lblDict.SetText(lstDicts.Selected() < 0 ? std::wstring() : lstDicts.Item(lstDicts.Selected()));
}

void frmPreferences::cmdOK_Click() {
    Preferences chosen;
    for (std::size_t i = 0; i < chkPrefs.size(); ++i) {
        if (static_cast<int>(i) != Preferences::kNoOption) {
            chosen.options[i] = chkPrefs[i].Checked();
        }
    }
    for (std::size_t i = 0; i < chkWays.size(); ++i) chosen.modern[i] = chkWays[i].Checked();
    chosen.rich_clipboard = optTTyp[1].Checked();
    chosen.sound = lblSnd.Text();
    for (std::size_t i = 0; i < optST.size(); ++i) {
        if (optST[i].Checked()) chosen.sort_by = static_cast<int>(i);
    }
    SaveDelimiterList(chosen);
    bool written = StorePreferences(chosen, program_.state, program_.settings, program_.flags);

    std::vector<std::wstring>& names = program_.settings.CustomDictionaries;
    names.clear();
    for (int i = 0; i < lstDicts.Count(); ++i) names.push_back(lstDicts.Item(i));
    if (lstDicts.Selected() >= 0) {
        program_.settings.CustomDic = lstDicts.Item(lstDicts.Selected());
        written &= modRegs::SaveSetting(program_.state, program_.settings, L"CustomDic");
    }
    if (!written) {
        desktop_.ui.ShowMessage(LoadResText(program_.state, text_id::kSettingsNotWritten),
                                Caption(), MessageIcon::Exclamation, MessageButtons::Ok);
    }
    Unload(IDOK);
}

void frmPreferences::Unload(int result) {
    if (handle_ == nullptr) return;
    Form_QueryUnload();
    Close(result);
}

void frmPreferences::Form_QueryUnload() {
    StorePreferenceTab(program_.state, program_.settings, tab_);
    ShowWindow(handle_, SW_HIDE);
    ClearFormTexts(*this);
}

bool frmPreferences::OnCommand(const ControlEvent& event) {
    if (event.id == IDCANCEL && (event.control == nullptr || event.code == BN_CLICKED)) {
        cmdCancel_Click();
        return true;
    }
    if (event.id == preferences_id::cboLgs && event.code == CBN_SELCHANGE) {
        cboLgs_Click();
        return true;
    }
    if (event.id == preferences_id::lstDicts && event.code == LBN_SELCHANGE) {
        lstDicts_Click();
        return true;
    }
    if (event.id == preferences_id::lstCr) {
        if (event.code != LBN_SELCHANGE && event.code != LBN_SETFOCUS) return false;
        lstCr.TakeCurrent();
        return true;
    }
    return event.code == BN_CLICKED && OnClick(event.id);
}

bool frmPreferences::OnClick(int id) {
    using namespace preferences_id;
    if (id >= preferences_id::lblTab && id < preferences_id::lblTab + Preferences::kTabCount) {
        const int tab = id - preferences_id::lblTab;
        if (tab != tab_) lblTab_Click(tab);
        return true;
    }
    if (id >= preferences_id::chkPrefs && id <= chkPrefs_last) {
        chkPrefs_Click(id - preferences_id::chkPrefs);
        return true;
    }
    if (id >= preferences_id::chkWays && id <= chkWays_last) {
        chkWays_Click();
        return true;
    }
    switch (id) {
        case preferences_id::chkModern: chkModern_Click(); return true;
        case preferences_id::cmdSnd: cmdSnd_Click(); return true;
        case preferences_id::cmdDefaults: cmdDefaults_Click(); return true;
        case preferences_id::cmdCusDicts: cmdCusDicts_Click(); return true;
        case IDOK: cmdOK_Click(); return true;
        default: return false;
    }
}

bool frmPreferences::OnKey(const MSG& message) {
    const bool control = GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_MENU) >= 0;
    if (message.message == WM_KEYDOWN && control) {
        int step = 0;
        if (message.wParam == VK_TAB) step = GetKeyState(VK_SHIFT) < 0 ? -1 : 1;
        if (message.wParam == VK_NEXT) step = 1;
        if (message.wParam == VK_PRIOR) step = -1;
        if (step != 0) {
            lblTab_Click((tab_ + step + Preferences::kTabCount) % Preferences::kTabCount);
            FirstControl().SetFocus();
            return true;
        }
    }
    return FormDialog::OnKey(message);
}

// ---- looks ----

void frmPreferences::OnMeasure() {
    const int height = EntryHeight(Font(), Dpi());
    lstCr.SetItemHeight(height);
    lstCr.SetColumnWidth(Scaled(132));
    lstDicts.SetItemHeight(height);
    cboLgs.SetItemHeight(height);
    for (const Label* heading : {&lblST, &lblSound, &lblLanguage, &lblDelimiters, &lblDictionary}) {
        SendMessageW(heading->Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(BoldFont()), TRUE);
    }
}

bool frmPreferences::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const int row = static_cast<int>(item.itemID);
    if (item.hwndItem == lstCr.Handle()) {
        DrawCheckedEntry(Colours(), item, row < 0 ? std::wstring() : lstCr.Item(row),
                         row == lstCr.Current() ? EntryRole::Current : EntryRole::Plain);
    } else if (item.hwndItem == lstDicts.Handle()) {
        DrawEntry(Colours(), item, row < 0 ? std::wstring() : lstDicts.Item(row));
    } else if (item.hwndItem == cboLgs.Handle()) {
        const auto at = static_cast<std::size_t>(row);
        const bool known = row >= 0 && at < languages_.size();
        DrawEntry(Colours(), item, known ? languages_[at].name : std::wstring(),
                  known ? std::to_wstring(languages_[at].locale) : std::wstring());
    } else {
        return false;
    }
    return true;
}

HBRUSH frmPreferences::OnControlColor(UINT message, HDC device, HWND control) {
    const HBRUSH brush = FormDialog::OnControlColor(message, device, control);
    if (control == lblDis[1].Handle()) SetTextColor(device, Colours().Use().accent);
    for (const Label& line : linTTyp) {
        if (control != line.Handle()) continue;
        // The lines around the formats tell whether they can be chosen.
        SetDCBrushColor(
            device, optTTyp[0].Enabled() ? Colours().Use().text : Colours().Use().disabled_text);
        return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
    }
    return brush;
}

void frmPreferences::TellDelimiterUnderPointer(LPARAM position) {
    const POINT point{static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
    const auto row = lstCr.At(point);
    lstCr.SetToolTipText(row ? DelimiterTip(program_.state, DelimiterCodeOfFlag(*row + 1))
                             : std::wstring());
}

}  // namespace wordhawk
