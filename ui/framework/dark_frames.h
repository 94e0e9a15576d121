#pragma once

#include "ui/framework/subclass.h"
#include "ui/framework/theme.h"

#include <memory>
#include <vector>

namespace wordhawk {

/// Frames in the theme's colours around the boxes and lists of a form, where the system draws its
/// own in one fixed look: around the document always, around the others in the dark theme, where
/// closed combo boxes are painted as a whole.
class DarkFrames {
  public:
    explicit DarkFrames(const Theme& theme) : theme_(theme) {}

    /// Takes charge of every box of the form that there is now.
    void Attach(HWND form);
    void AttachTo(HWND control);

  private:
    enum class Sort { Other, Box, Document, Combo };
    static Sort SortOf(HWND control);
    void PaintFrame(HWND control, Sort sort) const;
    void PaintCombo(HWND combo) const;

    const Theme& theme_;
    std::vector<std::unique_ptr<Subclass>> subclasses_;
};

}  // namespace wordhawk
