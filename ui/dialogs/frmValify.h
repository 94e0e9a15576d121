#pragma once

#include "app/delimiter_flags.h"
#include "app/program_state.h"
#include "ui/framework/FormDialog.h"
#include "ui/framework/controls/Button.h"
#include "ui/framework/controls/CheckBox.h"

#include <array>
#include <vector>

namespace wordhawk {

/// The options of an import. However it is closed, every box is saved to the flag one above the
/// flag that it showed: what the first box shows becomes the switch for custom dictionaries.
class frmValify : public FormDialog {
  public:
    frmValify(const ProgramState& state, DelimiterFlagStore& flags)
        : state_(state), flags_(flags) {}

    static constexpr const wchar_t* kClassName = L"frmValify";

    std::array<CheckBox, 3> chkVO;
    Button cmdOK;

    // Form
    std::vector<FormControl*> Controls() override;

    // Events
    void cmdOK_Click() { Unload(); }

  protected:
    Look WantedLook() const override;
    void MakeControls() override;
    void Form_Load() override;
    layout::NodePtr Layout() const override;
    const Control& FirstControl() const override { return cmdOK; }
    bool OnCommand(const ControlEvent& event) override;

  private:
    void Unload();

    const ProgramState& state_;
    DelimiterFlagStore& flags_;
};

}  // namespace wordhawk
