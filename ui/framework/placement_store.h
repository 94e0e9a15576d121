#pragma once

#include "platform/win32/win.h"

#include <optional>
#include <string>

namespace wordhawk {

/// Where the main window stood when it was last closed.
struct SavedPlacement {
    /// Restored position on the desktop, in pixels of `dpi`; without the options panel.
    RECT bounds{};
    int dpi = 96;
    bool maximized = false;
};

/// Keeps the placement under a key of the current user's registry.
class PlacementStore {
  public:
    /// The program's own key.
    PlacementStore();
    explicit PlacementStore(std::wstring key) : key_(std::move(key)) {}

    /// None when there is none yet, or what is there makes no sense.
    std::optional<SavedPlacement> Load() const;
    void Save(const SavedPlacement& placement) const;

  private:
    std::wstring key_;
};

/// `bounds` moved, and shrunk if need be, into the work area of the monitor that is nearest to it.
RECT WithinScreen(RECT bounds);

}  // namespace wordhawk
