// Where the suggestions of the main window come from.
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "ui/main_window/frmNewSpell.h"

namespace wordhawk {
namespace {

/// Comes up only when there is an index to make: that begins with telling how much there is to do.
class IndexProgress : public ProgressWindow {
  public:
    IndexProgress(const ProgramState& state, const Theme& theme, HWND owner,
                  ProgressWindow*& running)
        : ProgressWindow(state, theme, owner, Appear::WhenItTakesLong),
          title_(modLoadRes::LoadResText(state, text_id::kPreparingSearch)),
          running_(running) {}
    ~IndexProgress() override { running_ = nullptr; }

    void SetRange(std::uint64_t maximum) override {
        Show(title_);
        SetCaption(title_);
        ProgressWindow::SetRange(maximum);
        running_ = this;
    }

  private:
    std::wstring title_;
    ProgressWindow*& running_;
};

}  // namespace

bool frmNewSpell::PrepareSearch(WideSearch& search) {
    const HWND focus_before = GetFocus();
    const bool prepared = [&] {
        IndexProgress progress(program_.state, theme_, handle_, running_);
        return search.Prepare(progress);
    }();
    // Asked to close meanwhile: as soon as the command that searches has come to its end.
    if (close_when_done_) PostMessageW(handle_, WM_CLOSE, 0, 0);
    if (GetFocus() == nullptr && GetActiveWindow() == handle_ && IsWindow(focus_before))
        ::SetFocus(focus_before);
    return prepared;
}

void frmNewSpell::cmdSuggestions_Click() {
    const std::wstring text = txtChgTo.Text();
    suggestions_.FillSuggestions(Trim(text), SuggestionPane::SkipListed::No,
                                 program_.settings.SortBy);
    commands_.UpdateButtons();
}

void frmNewSpell::cmdEverywhere_Click() {
    suggestions_.SearchEverywhere();
    commands_.UpdateButtons();
}

void frmNewSpell::chkEverywhere_Click() { menu_commands_.mnuAlwaysEverywhere_Click(); }

}  // namespace wordhawk
