#pragma once

#include "platform/win32/handle.h"

namespace wordhawk {

/// The colours that the windows are painted in. They follow the system: high contrast first, then
/// dark, else light.
class Theme {
  public:
    enum class Kind { Light, Dark, HighContrast };
    struct Colours {
        COLORREF background;  ///< of forms
        COLORREF text;        ///< on forms
        COLORREF field;       ///< of lists, boxes and the document
        COLORREF field_text;
        COLORREF faint_text;  ///< counts and scores in lists
        COLORREF disabled_text;
        COLORREF selected;
        COLORREF selected_text;
        COLORREF button;
        COLORREF button_pressed;
        COLORREF border;
        COLORREF accent;  ///< of the default button and the word under correction
    };

    Theme();

    Kind Current() const { return kind_; }
    bool Dark() const { return kind_ == Kind::Dark; }
    const Colours& Use() const { return colours_; }

    /// Reads the system's choice again. True when anything changed.
    bool Refresh();

    /// Sets the colours of a control that is about to paint itself and returns its background:
    /// the work of the WM_CTLCOLOR messages.
    HBRUSH Prepare(UINT message, HDC device, HWND control) const;

    /// Title bar, and scroll bars of the controls, in the theme's kind.
    void Decorate(HWND form) const;
    void DecorateControl(HWND control) const;

  private:
    Kind kind_ = Kind::Light;
    Colours colours_{};
    BrushHandle background_;
    BrushHandle field_;
};

}  // namespace wordhawk
