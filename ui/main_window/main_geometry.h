#pragma once

#include "ui/framework/placement_store.h"
#include "ui/main_window/new_spell_controls.h"

namespace wordhawk {

/// Size and place of the main window: the smallest size, the options panel that widens it, and
/// where it stood the last time.
class MainGeometry {
  public:
    static constexpr int kMinimumWidth = 336;
    static constexpr int kMinimumHeight = 500;

    MainGeometry(NewSpellControls& controls, PlacementStore store)
        : controls_(controls), store_(std::move(store)) {}

    /// Gives the window its first size, in the middle of the screen.
    void Centre(HWND form, const layout::Measure& measure);
    void Restore(HWND form, const layout::Measure& measure);
    void Save(HWND form, const layout::Measure& measure) const;

    bool OptionsShown() const { return options_shown_; }
    void ToggleOptions(HWND form, const layout::Measure& measure);
    /// Fits the panels and all controls into the form's client area.
    void Arrange(HWND form, const layout::Measure& measure);
    /// The smallest size now: the options panel, while it is shown, is not taken from the lists.
    SIZE Smallest(const layout::Measure& measure) const;

  private:
    NewSpellControls& controls_;
    PlacementStore store_;
    bool options_shown_ = false;
};

}  // namespace wordhawk
