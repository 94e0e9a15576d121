#pragma once

#include "app/program_state.h"
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

/// Keeps the placement under a key of the current user's registry, or in a file.
class PlacementStore {
  public:
    /// The program's own key.
    PlacementStore();
    explicit PlacementStore(std::wstring key) : key_(std::move(key)) {}
    /// In the section "Window" of a profile file.
    explicit PlacementStore(Path file) : file_(std::move(file)) {}
    /// The program's own key, or the settings file of a portable copy, which leaves no traces
    /// elsewhere.
    static PlacementStore Of(const ProgramState& state, const Path& program_folder);

    /// None when there is none yet, or what is there makes no sense.
    std::optional<SavedPlacement> Load() const;
    void Save(const SavedPlacement& placement) const;

  private:
    std::optional<LONG> ReadNumber(const wchar_t* name) const;

    std::wstring key_;
    Path file_;
};

/// `bounds` moved, and shrunk if need be, into the work area of the monitor that is nearest to it.
RECT WithinScreen(RECT bounds);

}  // namespace wordhawk
