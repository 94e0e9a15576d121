#pragma once

#include "app/preferences.h"
#include "engine/program.h"
#include "lang/modRcLangs.h"
#include "ui/desktop.h"
#include "ui/dialogs/preferences_controls.h"
#include "ui/framework/FormDialog.h"
#include "ui/framework/subclass.h"

#include <string>
#include <vector>

namespace wordhawk {

/// The preferences. What is chosen holds from OK on; the language alone takes effect at once and
/// stays when the dialog is cancelled.
class frmPreferences : public FormDialog, public PreferencesControls {
  public:
    frmPreferences(Program& program, Desktop& desktop);

    static constexpr const wchar_t* kClassName = L"frmPreferences";

    // Form
    std::vector<FormControl*> Controls() override { return All(); }

    // Events
    void lblTab_Click(int index);
    void chkPrefs_Click(int index);
    void chkModern_Click();
    void chkWays_Click();
    void cboLgs_Click();
    void cmdSnd_Click();
    void lblSnd_MouseDown();
    void cmdDefaults_Click();
    void cmdCusDicts_Click();
    void lstDicts_Click();
    void cmdOK_Click();
    void cmdCancel_Click() { Unload(IDCANCEL); }

  protected:
    Look WantedLook() const override;
    void MakeControls() override;
    void Form_Load() override;
    layout::NodePtr Layout() const override { return DialogLayout(); }
    const Control& FirstControl() const override { return lblTab[static_cast<std::size_t>(tab_)]; }
    void OnMeasure() override;
    bool OnCommand(const ControlEvent& event) override;
    bool OnKey(const MSG& message) override;
    bool OnDrawItem(const DRAWITEMSTRUCT& item) override;
    HBRUSH OnControlColor(UINT message, HDC device, HWND control) override;

  private:
    void ApplyCaptions();
    void ShowOptions(const Preferences& now);
    void FillLanguages();
    void FillDelimiterList(const Preferences& now);
    void SaveDelimiterList(Preferences& chosen) const;
    void ShowDictionaries();
    void EnableFormats();
    bool OnClick(int id);
    void Form_QueryUnload();
    void Unload(int result);
    void TellDelimiterUnderPointer(LPARAM position);

    Program& program_;
    Desktop& desktop_;
    std::vector<modRcLangs::LanguageEntry> languages_;
    Subclass sound_mouse_;
    Subclass delimiter_mouse_;
    int tab_ = 0;
    /// Keeps the selection that loading makes from acting as a choice.
    bool loading_ = true;
};

}  // namespace wordhawk
