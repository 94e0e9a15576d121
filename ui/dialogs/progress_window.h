#pragma once

#include "app/program_state.h"
#include "app/progress.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/controls/Button.h"
#include "ui/framework/controls/Label.h"
#include "ui/framework/theme.h"
#include "ui/framework/tool_tips.h"

#include <cstdint>
#include <memory>
#include <string>

namespace wordhawk {

/// The display of a long operation: a small window with a line of text, a bar and Cancel, over its
/// owner, which takes no input meanwhile. Everything runs on the caller's thread: messages are let
/// through when the operation yields, at most every few hundredths of a second, so that yielding
/// often costs next to nothing.
class ProgressWindow : public Progress {
  public:
    /// Whether a window for an operation that may be over at once should wait a moment.
    enum class Appear { AtOnce, WhenItTakesLong };
    ProgressWindow(const ProgramState& state, const Theme& theme, HWND owner, Appear appear);
    ~ProgressWindow() override;

    // Progress
    void Show(std::wstring_view title) override;
    void Hide() override;
    void SetCaption(std::wstring_view caption) override { caption_ = caption; }
    void SetRange(std::uint64_t maximum) override { maximum_ = maximum; }
    void SetPosition(std::uint64_t position) override { position_ = position; }
    bool IsDue() override;
    bool YieldAndAskCancel() override;

    /// As a click on Cancel.
    void Cancel() { cancelled_ = true; }
    /// The window while it is on the screen, else null.
    HWND Handle() const;

  private:
    class Box;

    void Begin();
    void Update();
    void PumpMessages();

    const ProgramState& state_;
    const Theme& theme_;
    HWND owner_;
    Appear appear_;
    std::unique_ptr<Box> box_;
    std::wstring title_;
    std::wstring caption_;
    std::uint64_t maximum_ = 0;
    std::uint64_t position_ = 0;
    std::uint64_t began_ = 0;
    std::uint64_t last_yield_ = 0;
    bool running_ = false;
    bool cancelled_ = false;
    bool owner_was_enabled_ = false;
};

}  // namespace wordhawk
