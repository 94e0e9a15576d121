#pragma once

#include "engine/program.h"
#include "ui/desktop.h"
#include "ui/framework/FormDialog.h"
#include "ui/framework/controls/Button.h"
#include "ui/framework/controls/Edit.h"
#include "ui/framework/controls/Label.h"
#include "ui/framework/controls/ListBox.h"
#include "ui/framework/controls/Menu.h"

#include <vector>

namespace wordhawk {

/// Shows the words of one custom dictionary, finds them by their beginning and removes them.
class frmEditDict : public FormDialog {
  public:
    frmEditDict(Program& program, Desktop& desktop);

    static constexpr const wchar_t* kClassName = L"frmEditDict";

    Label lblDum;
    Edit txtSrch;
    ListBox lstEdit;
    Label lblCount;
    Label lblStatus;
    Button cmdDelete;
    Button cmdOK;
    /// The menu of Delete; the item at index 1 is the check mark of the question.
    PopupMenu mnuFile;
    MenuItem& mnuFiles(std::size_t index) { return *mnuFile[index - 1]; }

    /// The file being edited.
    const Path& PivitPath() const { return path_; }
    void SetPivitPath(const Path& path) { path_ = path; }
    /// Loads a file into the list, CUSTOM.DIC for an empty path. Before the dialog is shown, it
    /// loads as the dialog comes up. A missing file has no words.
    void OpenEditCustomDictionary(const Path& path);

    // Form
    std::vector<FormControl*> Controls() override;

    // Events
    void txtSrch_Change();
    void lstEdit_Click();
    void cmdDelete_Click();
    void mnuFiles_Click(int index);
    void cmdOK_Click() { Close(IDOK); }

  protected:
    Look WantedLook() const override;
    void MakeControls() override;
    void Form_Load() override;
    layout::NodePtr Layout() const override;
    const Control& FirstControl() const override { return txtSrch; }
    void OnMeasure() override;
    bool OnCommand(const ControlEvent& event) override;
    bool OnKey(const MSG& message) override;
    bool OnContextMenu(const ContextRequest& request) override;
    bool OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    void FillList();
    bool Confirmed(const std::wstring& word);
    void UpdateState();

    Program& program_;
    Desktop& desktop_;
    Path path_;
};

}  // namespace wordhawk
