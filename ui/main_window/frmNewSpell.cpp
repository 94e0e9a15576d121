#include "ui/main_window/frmNewSpell.h"

#include "app/version.h"
#include "dict/dictionary_store.h"
#include "engine/session/captions.h"
#include "lang/apply_language.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "platform/modICCX.h"
#include "platform/win32/win.h"
#include "ui/dialogs/frmPreferences.h"
#include "ui/framework/themed_drawing.h"
#include "ui/main_window/main_captions.h"
#include "ui/resource.h"

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>

namespace wordhawk {

using modLoadRes::LoadResText;

frmNewSpell::frmNewSpell(const Surroundings& surroundings)
    : NewSpellControls(surroundings.desktop.clipboard, theme_),
      program_(surroundings.program),
      desktop_(surroundings.desktop),
      shared_(surroundings.shared),
      status_(*this, [this] { Form_Resize(); }),
      suggestions_({*this, program_.dictionaries, program_.ui,
                    [this](WideSearch& search) { return PrepareSearch(search); }}),
      commands_({program_, desktop_, *this, suggestions_, status_, theme_,
                 [this] { return handle_; },
                 [this](ProgressWindow* progress) { running_ = progress; },
                 [this](const SessionStep& step) { Finished(step); }}),
      files_({program_, desktop_, document, commands_, status_}),
      check_({program_, desktop_, document, files_, commands_, status_, theme_, *this,
              [this](ProgressWindow* progress) { running_ = progress; }, [this] { ShowToUser(); },
              [this] { ShowTitle(); },
              [this] {
                  if (!OptionsShown()) cmdOptions_Click();
              }}),
      menu_commands_({program_, desktop_, *this, menus_, commands_, suggestions_, status_}),
      geometry_(*this, surroundings.placement) {}

frmNewSpell::~frmNewSpell() {
    if (shared_.instance == this) shared_.instance = nullptr;
}

Dialog::Look frmNewSpell::WantedLook() const {
    Look look;
    look.style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    look.extended_style = WS_EX_ACCEPTFILES | WS_EX_CONTROLPARENT;
    look.class_name = kClassName;
    look.icon_id = WORDHAWK_ICON;
    return look;
}

bool frmNewSpell::Make() {
    Form_Initialize();
    return Create(nullptr);
}

bool frmNewSpell::Show() {
    if (!Make()) return false;
    geometry_.Restore(handle_, MeasureNow());
    ShowWindow(handle_, IsZoomed(handle_) ? SW_SHOWMAXIMIZED : SW_SHOW);
    const bool check_at_once = program_.state.ProgramMode && files_.CommandFileIsPending();
    MoveFocus(check_at_once ? static_cast<const Control&>(lstNID) : rtbW);
    if (check_at_once) {
        // A large document takes its time: until then, a whole window and not the outline of one.
        RedrawWindow(handle_, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        cmdSpellcheck_Click();
    } else if (files_.OfferRecovered()) {
        CheckDocument();
    }
    return true;
}

void frmNewSpell::Form_Initialize() { modICCX::InitCommonControlsVB(modICCX::kAllClasses); }

void frmNewSpell::OnInit() {
    tips_.Create(handle_);
    CreateAll(handle_, tips_);
    ApplyFonts();
    suggestions_.Attach();
    drag_.Attach(*this, [this] { Form_Resize(); });
    copy_data_mouse_.Install(cmdCopyData.Handle(),
                             [this](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
                                 if (message != WM_RBUTTONDOWN) return {};
                                 cmdCopyData_MouseDown();
                                 return 0;
                             });
    SetWordPointer();
    frames_.Attach(handle_);
    document.on_renewed = [this](HWND control) {
        frames_.AttachTo(control);
        theme_.DecorateControl(control);
    };
    theme_.Decorate(handle_);
    Form_Load();
}

void frmNewSpell::SetWordPointer() {
    const auto pointer = static_cast<HCURSOR>(
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(WORDHAWK_COPY_CURSOR), IMAGE_CURSOR,
                   0, 0, LR_DEFAULTSIZE | LR_SHARED));
    if (pointer == nullptr) return;
    word_pointer_.Install(lblNID.Handle(),
                          [pointer](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
                              if (message != WM_SETCURSOR) return {};
                              SetCursor(pointer);
                              return TRUE;
                          });
}

// Texts first, so that what is measured has its words; the document last.
void frmNewSpell::Form_Load() {
    ApplyCaptions();
    if (!program_.state.ProgramMode) shared_.instance = this;
    if (program_.state.ProgramMode && program_.settings.OpenWOptions != 0) cmdOptions_Click();
    commands_.recent.LoadRecentChanges(program_.state.SettingsProfile());
    commands_.ShowRecent();
    geometry_.Centre(handle_, MeasureNow());
    // A check mark, whatever the file says.
    program_.settings.ExtraDiversity = program_.settings.ExtraDiversity != 0 ? 1 : 0;
    suggestions_.ShowSliders();
    menus_.mnuDiversity->SetChecked(program_.settings.ExtraDiversity != 0);
    cmdSpellcheck.SetVisible(program_.state.ProgramMode);
    cmdSpellcheck.SetEnabled(program_.state.ProgramMode);
    cmdPreferences.SetVisible(program_.state.ProgramMode);
    cmdPreferences.SetEnabled(program_.state.ProgramMode);
    LoadSettings();
    LOGFONTW font{};
    GetObjectW(Font(), sizeof font, &font);
    document.SetLook(font.lfFaceName, 20);
    if (program_.state.ProgramMode && program_.state.CommandFile.empty() &&
        program_.settings.CheckClip) {
        files_.TakeClipboard();
    }
    files_.TellOfKept();
    SetTimer(handle_, kRecoveryTimer, kRecoveryMilliseconds, nullptr);
    commands_.UpdateButtons();
    ShowTitle();
    loaded_ = true;
    Form_Resize();
}

void frmNewSpell::LoadSettings() {
    const Settings before = program_.settings;
    program_.ReloadSettings();
    // The sliders are saved only when the window closes.
    program_.settings.ScoreValue = before.ScoreValue;
    program_.settings.Diversity = before.Diversity;
    program_.settings.ExtraDiversity = before.ExtraDiversity;
    const Settings& settings = program_.settings;
    lstSco.SetVisible(settings.ScoreBox);
    lblDum[2].SetVisible(settings.ScoreBox);
    cmdOpen.SetVisible(settings.OpenSave);
    cmdOpen.SetEnabled(settings.OpenSave);
    // A text that could not be written back must get out in some way.
    cmdSaveAs.SetVisible(settings.OpenSave || save_as_offered_);
    cmdSaveAs.SetEnabled(settings.OpenSave || save_as_offered_);
    menus_.CheckSearchMode(settings.SortBy);
    suggestions_.ShowUsualReach();
    menus_.mnuAlwaysEverywhere->SetChecked(chkEverywhere.Checked());
    ShowCustomDictionaries();
    Form_Resize();
}

void frmNewSpell::ShowCustomDictionaries() {
    Settings& settings = program_.settings;
    cboDicts.Fill(settings.CustomDictionaries);
    // What is added goes to a dictionary that is searched, and that the box shows.
    if (cboDicts.FindExact(settings.CustomDic) < 0)
        settings.CustomDic = settings.CustomDictionaries.front();
    cboDicts.Select(cboDicts.FindExact(settings.CustomDic));
    menus_.FillCustom(settings.CustomDictionaries);
}

void frmNewSpell::ApplyCaptions() {
    SetTextIds(*this, menus_);
    ApplyLanguage(program_.state, *this);
    SetComposedCaptions(program_.state, *this);
    if (!loaded_) return;
    // In another language the numbers stay what they are.
    suggestions_.hsScore_Change();
    suggestions_.ShowCount();
    suggestions_.ShowReach();
    commands_.UpdateCounter();
    Form_Resize();
}

std::wstring frmNewSpell::Caption() const {
    std::wstring caption(static_cast<std::size_t>(GetWindowTextLengthW(handle_)) + 1, L'\0');
    caption.resize(static_cast<std::size_t>(
        GetWindowTextW(handle_, caption.data(), static_cast<int>(caption.size()))));
    return caption;
}

void frmNewSpell::SetCaption(const std::wstring& caption) {
    SetWindowTextW(handle_, caption.c_str());
}

std::vector<FormControl*> frmNewSpell::Controls() {
    std::vector<FormControl*> controls = All();
    const std::vector<FormControl*> items = menus_.All();
    controls.insert(controls.end(), items.begin(), items.end());
    return controls;
}

void frmNewSpell::ShowTitle() {
    const std::wstring program = FromUtf8(WORDHAWK_TITLE);
    SetCaption(files_.Title().empty() ? program : files_.Title() + L" - " + program);
}

// ---- checking ----

void frmNewSpell::cmdSpellcheck_Click() {
    if (!cmdSpellcheck.Enabled() || running_ != nullptr) return;
    commands_.Reset();
    status_.Clear();
    if (files_.CommandFileIsPending()) LeaveDocument();
    CheckDocument();
}

long frmNewSpell::SpellCheck(SpellCheckArguments& arguments) {
    return cSpellit(program_, check_).SpellCheck(arguments);
}

void frmNewSpell::CheckDocument() {
    const HWND focus_before = GetFocus();
    // What could not be read for the last check may be there for this one.
    const std::vector<Error> unreadable = program_.dictionaries.Unreadable();
    for (const Error& error : unreadable) program_.dictionaries.ReloadFile(error.where);
    SpellCheckArguments arguments = check_.OwnArguments();
    if (SpellCheck(arguments) < kChecked) return;
    if (CloseIfAsked()) return;
    const bool correcting = !commands_.session.Words().empty();
    TellOfUnreadable();
    if (correcting) {
        // From here on Enter means Change; in the document it would replace the selected word.
        MoveFocus(txtChgTo);
        txtChgTo.SelectAll();
    } else {
        // The check took the keyboard away; what was selected must not give way to the next key.
        if (GetFocus() == nullptr && IsWindow(focus_before)) ::SetFocus(focus_before);
        document.CollapseSelection();
    }
    // A file that was named has been checked even when it is empty.
    const bool checked = !document.Empty() || files_.FromCommandFile();
    if (!correcting && !check_.Cancelled() && checked) {
        HandOver(commands_.session.Notice(),
                 files_.FromCommandFile() && !program_.settings.RemainOpen);
    }
    KeepFocus();
}

// Another program has the keyboard, and the system may refuse to take it away: then the window is
// at least to be seen.
void frmNewSpell::ShowToUser() {
    geometry_.Restore(handle_, MeasureNow());
    ShowWindow(handle_, IsZoomed(handle_) ? SW_SHOWMAXIMIZED : SW_SHOW);
    if (!SetForegroundWindow(handle_) || GetForegroundWindow() != handle_) {
        constexpr UINT kInPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
        SetWindowPos(handle_, HWND_TOPMOST, 0, 0, 0, 0, kInPlace);
        SetWindowPos(handle_, HWND_NOTOPMOST, 0, 0, 0, 0, kInPlace);
        FLASHWINFO flash{sizeof flash, handle_, FLASHW_ALL | FLASHW_TIMERNOFG, 0, 0};
        FlashWindowEx(&flash);
    }
    MoveFocus(txtChgTo);
    txtChgTo.SelectAll();
}

void frmNewSpell::cmdAddAll_Click(int index) {
    commands_.AddAll(static_cast<AddIndex>(index));
    CloseIfAsked();
}

bool frmNewSpell::CloseIfAsked() {
    if (!close_when_done_) return false;
    Unload();
    return true;
}

void frmNewSpell::Finished(const SessionStep& step) {
    // Whoever presses one key too many does so in an empty list.
    MoveFocus(lstNID);
    HandOver(step.notice, step.close);
    KeepFocus();
}

void frmNewSpell::HandOver(CompletionNotice notice, bool close) {
    const bool saved = files_.SaveBack();
    if (!saved) OfferSaveAs();
    files_.SetClipboard();
    commands_.Announce(notice);
    // The box of the announcement lets messages through, and one may have closed the window. A text
    // that could not be saved keeps it open.
    if (handle_ != nullptr && close && saved) tmrBye_.SetEnabled(handle_, true);
}

void frmNewSpell::cmdOpen_Click() {
    if (!files_.Open(handle_)) return;
    LeaveDocument();
    commands_.Reset();
    CheckDocument();
}

void frmNewSpell::OnDropFiles(const std::vector<std::wstring>& paths) {
    // Another program waits for the very text that is there.
    if (!program_.state.ProgramMode) return;
    if (paths.empty() || running_ != nullptr || !files_.LoadDropped(paths.front())) return;
    LeaveDocument();
    commands_.Reset();
    CheckDocument();
}

void frmNewSpell::cmdSaveAs_Click() {
    files_.SaveAs(handle_);
    ShowTitle();
}

void frmNewSpell::cmdOptions_Click() {
    geometry_.ToggleOptions(handle_, MeasureNow());
    KeepFocus();
}

void frmNewSpell::cmdPreferences_Click() {
    if (running_ != nullptr) return;
    const std::wstring language = program_.state.LanguageId;
    frmPreferences(program_, desktop_).ShowModal(handle_);
    // The system may have ended the program meanwhile.
    if (handle_ == nullptr) return;
    if (program_.state.LanguageId != language) ApplyCaptions();
    // The list stays as the dialogs left it: what an earlier, longer one left in the file is read
    // at the next start.
    const std::vector<std::wstring> dictionaries = program_.settings.CustomDictionaries;
    LoadSettings();
    program_.settings.CustomDictionaries = dictionaries;
    program_.dictionaries.ReloadCustomDictionaries();
    ShowCustomDictionaries();
}

void frmNewSpell::cboChgTo_Click() {
    if (cboChgTo.Selected() >= 0) txtChgTo.SetText(cboChgTo.Item(cboChgTo.Selected()));
}

void frmNewSpell::txtChgTo_Change() {
    commands_.UpdateButtons();
    suggestions_.txtChgTo_Change();
}

void frmNewSpell::cboDicts_Click() {
    if (cboDicts.Selected() < 0) return;
    program_.settings.CustomDic = cboDicts.Item(cboDicts.Selected());
    modRegs::SaveSetting(program_.state, program_.settings, L"CustomDic");
}

// ---- closing ----

void frmNewSpell::tmrBye_Timer() {
    tmrBye_.SetEnabled(handle_, false);
    Unload();
}

}  // namespace wordhawk
