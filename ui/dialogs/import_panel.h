#pragma once

#include "app/program_state.h"
#include "app/progress.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/Panel.h"
#include "ui/framework/controls/Button.h"
#include "ui/framework/controls/Label.h"
#include "ui/framework/controls/PercentBar.h"
#include "ui/framework/layout.h"
#include "ui/framework/theme.h"
#include "ui/framework/tool_tips.h"

#include <cstdint>
#include <string>

namespace wordhawk {

/// The part of the custom dictionaries manager that shows an import: a caption, the word that is
/// being looked at, a bar with its percentage, and Cancel. Messages are let through as the import
/// yields, at most every few hundredths of a second.
class ImportPanel : public Progress {
  public:
    ImportPanel(ProgramState& state, Dialog& form) : state_(state), form_(form) {}

    Panel fraASC;
    Label lblSearch;
    Label lblWord;
    PercentBar picIP;
    Button cmdCanImport;

    void Create(HWND form, ToolTips& tips);
    layout::NodePtr Layout() const;
    bool Running() const { return running_; }
    /// As a click on Cancel.
    void Cancel() { state_.StopFlag = true; }
    bool Cancelled() const { return state_.StopFlag; }
    /// Draws the bar when `item` is it.
    bool Draw(const Theme& theme, const DRAWITEMSTRUCT& item) const;

    // Progress
    void Show(std::wstring_view title) override;
    void Hide() override { running_ = false; }
    void SetCaption(std::wstring_view caption) override;
    void SetDetail(std::wstring_view detail) override { detail_ = detail; }
    void SetRange(std::uint64_t maximum) override { maximum_ = maximum; }
    void SetPosition(std::uint64_t position) override { position_ = position; }
    bool YieldAndAskCancel() override;

  private:
    void Update();

    ProgramState& state_;
    Dialog& form_;
    std::wstring detail_;
    std::uint64_t maximum_ = 0;
    std::uint64_t position_ = 0;
    std::uint64_t last_yield_ = 0;
    bool running_ = false;
};

}  // namespace wordhawk
