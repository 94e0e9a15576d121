#pragma once

#include "ui/framework/subclass.h"
#include "ui/main_window/new_spell_controls.h"

#include <array>
#include <functional>

namespace wordhawk {

/// Lets the user change the places of the four commands on words, by dragging one onto another with
/// the right mouse button.
class ButtonDrag {
  public:
    /// Calls `rearranged` after two buttons changed places.
    void Attach(NewSpellControls& controls, std::function<void()> rearranged);

    /// The drag of `source` ends at a point of the screen.
    void Drop(Button& source, POINT screen);

  private:
    std::optional<LRESULT> OnMouse(Button& button, UINT message);

    NewSpellControls* controls_ = nullptr;
    std::function<void()> rearranged_;
    std::array<Button*, 4> movable_{};
    std::array<Subclass, 4> subclasses_;
    const Button* dragged_ = nullptr;
};

}  // namespace wordhawk
