#pragma once

#include "engine/program.h"
#include "ui/desktop.h"
#include "ui/dialogs/import_panel.h"
#include "ui/framework/FormDialog.h"
#include "ui/framework/controls/Button.h"
#include "ui/framework/controls/CheckBox.h"
#include "ui/framework/controls/CheckList.h"
#include "ui/framework/controls/Label.h"
#include "ui/framework/controls/Menu.h"

#include <optional>
#include <string>
#include <vector>

namespace wordhawk {

/// The custom dictionaries: which of them are used (ticked), new ones, imports, words, and an end
/// to those not needed. What is ticked holds from OK on.
class frmCusDics : public FormDialog {
  public:
    frmCusDics(Program& program, Desktop& desktop);

    static constexpr const wchar_t* kClassName = L"frmCusDics";
    static constexpr int kLongestName = 14;

    Label lblDum;
    CheckList lstCusDics;
    Button cmdNew;
    Button cmdAdd;
    Button cmdEdit;
    Button cmdDelete;
    Button cmdRemove;
    Button cmdOK;
    CheckBox chkHO;
    Label lblStatus;
    /// fraASC, picIP, lblSearch, cmdCanImport.
    ImportPanel panel;
    /// The menu of Delete: whether it asks.
    PopupMenu mnuFiles;

    // Form
    std::vector<FormControl*> Controls() override;

    // Events
    void cmdNew_Click();
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();
    void cmdRemove_Click();
    void cmdCanImport_Click() { panel.Cancel(); }
    void cmdOK_Click();
    void lstCusDics_Click();
    void mnuFiles_Click();

  protected:
    Look WantedLook() const override;
    void MakeControls() override;
    void Form_Load() override;
    layout::NodePtr Layout() const override;
    const Control& FirstControl() const override { return lstCusDics; }
    void OnMeasure() override;
    bool OnCommand(const ControlEvent& event) override;
    bool OnKey(const MSG& message) override;
    bool OnContextMenu(const ContextRequest& request) override;
    bool OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    /// Lists the files there are, the given ones ticked.
    void RefreshDictionaryList(const std::vector<std::wstring>& ticked);
    std::vector<std::wstring> Ticked() const;
    std::wstring CurrentName() const;
    void UpdateButtons();
    void Say(int text, std::wstring_view value = {});
    void Tell(const std::wstring& text, const std::wstring& title, MessageIcon icon);
    std::optional<std::wstring> AskForName();
    bool Importable(const Path& source, const std::wstring& name);
    void Import(const Path& source, const std::wstring& name);
    enum class Mode { Idle, Importing };
    void SetMode(Mode mode);

    Program& program_;
    Desktop& desktop_;
};

}  // namespace wordhawk
