#pragma once

#include "ui/main_window/new_spell_controls.h"

#include <functional>
#include <string>

namespace wordhawk {

/// The line at the foot of the main window: what the last command did. Every command says something
/// new or clears it, so it never tells of something long gone.
class StatusLine {
  public:
    enum class Undo { None, LastAdd, LastRemoval };

    /// `arrange` gives the line and its button their places, when the button comes or goes.
    StatusLine(NewSpellControls& controls, std::function<void()> arrange)
        : controls_(controls), arrange_(std::move(arrange)) {}

    /// `undo` offers to take a change of a dictionary back.
    void Say(const std::wstring& text, Undo undo = Undo::None);
    void Clear() { Say({}); }
    /// What the line offers to take back.
    Undo Offered() const { return offered_; }

  private:
    NewSpellControls& controls_;
    std::function<void()> arrange_;
    Undo offered_ = Undo::None;
};

}  // namespace wordhawk
