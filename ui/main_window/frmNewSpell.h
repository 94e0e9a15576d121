#pragma once

#include "engine/program.h"
#include "lang/form_texts.h"
#include "ui/desktop.h"
#include "ui/dialogs/progress_window.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/dark_frames.h"
#include "ui/framework/held_keys.h"
#include "ui/framework/placement_store.h"
#include "ui/framework/theme.h"
#include "ui/main_window/button_drag.h"
#include "ui/main_window/closing_timer.h"
#include "ui/main_window/correction_commands.h"
#include "ui/main_window/document_check.h"
#include "ui/main_window/document_files.h"
#include "ui/main_window/main_geometry.h"
#include "ui/main_window/main_menu_commands.h"
#include "ui/main_window/main_menus.h"
#include "ui/main_window/new_spell_controls.h"
#include "ui/main_window/status_line.h"
#include "ui/main_window/suggestion_pane.h"

#include <functional>
#include <string>
#include <vector>

namespace wordhawk {

class frmNewSpell;

/// Where the main window leaves itself to be found while it works for automation.
struct SharedMainWindow {
    frmNewSpell* instance = nullptr;
};

/// The main window: wires its controls to the parts that do the work.
class frmNewSpell : public Dialog, public Form, public NewSpellControls {
  public:
    /// What a window is made with; all must outlive it.
    struct Surroundings {
        Program& program;
        Desktop& desktop;
        SharedMainWindow& shared;
        PlacementStore placement{};
    };
    explicit frmNewSpell(const Surroundings& surroundings);
    ~frmNewSpell() override;

    /// Makes and fills the window and shows it, then checks the document of the command line. False
    /// when the system refuses to make it.
    bool Show();
    /// Makes and fills the window without showing it.
    bool Make();
    /// Checks what the arguments say, as cSpellit::SpellCheck.
    long SpellCheck(SpellCheckArguments& arguments);
    /// The program that asked for the check has ended: what was corrected is kept for the user.
    void CallerEnded() { check_.CallerEnded(); }
    /// As the close button does.
    void Unload();
    /// Called when the window is gone.
    std::function<void()> on_unloaded;

    static constexpr const wchar_t* kClassName = L"frmNewSpell";

    // Form
    std::wstring Caption() const override;
    void SetCaption(const std::wstring& caption) override;
    std::wstring Tag() const override { return tag_; }
    void SetTag(const std::wstring& tag) override { tag_ = tag; }
    std::vector<FormControl*> Controls() override;

    /// Sets every caption and tool tip from the language in force.
    void ApplyCaptions();
    /// Reads the settings and shows what hangs on them.
    void LoadSettings();

    SpellSession& Session() { return commands_.session; }
    MainMenus& Menus() { return menus_; }
    MainMenuCommands& MenuCommands() { return menu_commands_; }
    ButtonDrag& Drag() { return drag_; }
    std::wstring SuggestionTip(int row) const { return suggestions_.Explanation(row); }
    bool OptionsShown() const { return geometry_.OptionsShown(); }
    /// A check or a long command is letting messages through.
    bool IsRunning() const { return running_ != nullptr; }
    bool CloseIsPending() const { return tmrBye_.Enabled(); }

    /// Takes over the words that a check found and goes to the one that comes first in the
    /// document. False when there is none.
    bool FindNextToStart(std::vector<std::wstring> words) {
        return commands_.Begin(std::move(words));
    }
    /// Goes to an entry of the list: its word is selected in the document and gets its suggestions.
    void FindItNow(int index) { commands_.SelectWord(index); }

    // Events
    void Form_Resize() { geometry_.Arrange(handle_, MeasureNow()); }
    void cmdSpellcheck_Click();
    void cmdChange_Click() { commands_.Change(); }
    void cmdChangeAll_Click() { commands_.ChangeAll(); }
    void cmdIgnore_Click() { commands_.Ignore(); }
    void cmdIgnoreAll_Click() { commands_.IgnoreAll(); }
    void cmdAdd_Click(int index) { commands_.Add(static_cast<AddIndex>(index)); }
    void cmdAddAll_Click(int index);
    void cmdSuggestions_Click();
    void cmdEverywhere_Click();
    void chkEverywhere_Click();
    void cmdCopyData_Click() { commands_.CopyData(); }
    void cmdCopyData_MouseDown() { commands_.CopyWord(); }
    void cmdOpen_Click();
    void cmdSaveAs_Click();
    void cmdOptions_Click();
    void cmdPreferences_Click();
    void cmdCancel_Click() { Unload(); }
    void lblNID_Click() { commands_.TakeWord(); }
    void lstNID_Click() { FindItNow(lstNID.Selected()); }
    void lstSug_Click() { suggestions_.TakeSelected(); }
    void lstSco_Click() { suggestions_.lstSco_Click(); }
    void lstSco_DblClick() { suggestions_.lstSco_DblClick(); }
    void cboChgTo_Click();
    void cboDicts_Click();
    void txtChgTo_Change();
    void rtbW_Change() { document.OnChanged(); }
    void hsScore_Change() { suggestions_.hsScore_Change(); }
    void hsdiversity_Change() { suggestions_.hsdiversity_Change(); }
    void tmrBye_Timer();
    bool Form_KeyUp(UINT key);

  protected:
    Look WantedLook() const override;
    void OnInit() override;
    void OnFontsChanged() override;
    void OnQueued(const MSG& message) override { tips_.Relay(message); }
    bool OnKey(const MSG& message) override;
    void OnKeyHandled(UINT message, HWND focus_before) override;
    Reply OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
    bool OnCommand(const ControlEvent& event) override;
    Reply OnNotify(NMHDR& news) override;
    void OnScroll(HWND control) override;
    void OnScrollEnd(HWND) override { suggestions_.SliderReleased(); }
    void OnSize(int width, int height) override;
    void OnMinimumSize(SIZE& smallest) override;
    bool OnTimer(UINT_PTR id) override;
    bool OnClose() override;
    bool OnDrawItem(const DRAWITEMSTRUCT& item) override;
    bool OnMeasureItem(MEASUREITEMSTRUCT& item) override;
    HBRUSH OnControlColor(UINT message, HDC device, HWND control) override;
    bool OnContextMenu(const ContextRequest& request) override;
    void OnInitMenu(HMENU menu) override;
    void OnDropFiles(const std::vector<std::wstring>& paths) override;
    void OnAppearanceChanged() override;
    void OnActivate(bool active) override;

  private:
    static void Form_Initialize();
    void Form_Load();
    static constexpr UINT_PTR kRecoveryTimer = 2;
    static constexpr UINT kRecoveryMilliseconds = 1000;

    bool Form_QueryUnload();
    /// The text could not be written back, and must get out in some other way.
    void OfferSaveAs();
    void Form_Unload();

    bool OnButton(int id);
    bool OnControl(const ControlEvent& event);
    bool OnEnter();
    bool OnCommandKey(UINT key);
    void ShowMenu(PopupMenu& menu, const ContextRequest& request);

    void SetWordPointer();
    /// Makes the index of the whole dictionary, which takes a moment the first time. False when the
    /// user stopped it.
    bool PrepareSearch(WideSearch& search);
    void CheckDocument();
    void ShowToUser();
    /// Once for each set of dictionaries: a word may be unknown only because its file cannot be
    /// read.
    void TellOfUnreadable();
    void Finished(const SessionStep& step);
    /// The end of a check: the text goes where the settings want it, the end is announced, and the
    /// window closes itself if asked to.
    void HandOver(CompletionNotice notice, bool close);
    bool CloseIfAsked();
    void ShowCustomDictionaries();
    void ShowTitle();
    void KeepFocus();
    void MoveFocus(const Control& control);
    void LeaveDocument();
    void GiveFocusBack(HWND control);
    Button* FocusedButton();
    layout::Measure MeasureNow() const { return {Dpi(), Font()}; }

    Program& program_;
    Desktop& desktop_;
    SharedMainWindow& shared_;
    Theme theme_;
    DarkFrames frames_{theme_};
    ToolTips tips_;
    std::wstring tag_;
    MainMenus menus_;
    StatusLine status_;
    SuggestionPane suggestions_;
    CorrectionCommands commands_;
    DocumentFiles files_;
    DocumentCheck check_;
    MainMenuCommands menu_commands_;
    MainGeometry geometry_;
    ButtonDrag drag_;
    Subclass copy_data_mouse_;
    Subclass word_pointer_;
    ClosingTimer tmrBye_;
    HeldKeys held_;
    /// The key message that is being handled repeats a key that is held down.
    bool key_repeats_ = false;
    HWND last_focus_ = nullptr;
    /// The check or long command that is letting messages through, if one is.
    ProgressWindow* running_ = nullptr;
    bool loaded_ = false;
    bool close_when_done_ = false;
    bool save_back_failed_ = false;
    bool save_as_offered_ = false;
    bool session_ends_ = false;
    std::size_t unreadable_told_ = 0;
};

}  // namespace wordhawk
