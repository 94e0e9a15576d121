#pragma once

#include "platform/win32/win.h"
#include "ui/framework/theme.h"

#include <commctrl.h>

#include <string_view>

namespace wordhawk {

/// Draws an entry of an owner-drawn list or combo box: `text`, and at its right end, fainter,
/// `detail`.
void DrawEntry(const Theme& theme, const DRAWITEMSTRUCT& item, std::wstring_view text,
               std::wstring_view detail = {});

/// Draws an entry of a list in which several can be ticked; `current` is the one that the keyboard
/// is on.
enum class EntryRole { Plain, Current };
void DrawCheckedEntry(const Theme& theme, const DRAWITEMSTRUCT& item, std::wstring_view text,
                      EntryRole role);

/// Paints check boxes and option buttons in the dark theme, as DrawButton does push buttons.
LRESULT DrawCheckBox(const Theme& theme, const NMCUSTOMDRAW& drawing);

/// Paints a tab, the chosen one in `bold`. Its button is an option button that looks like a push
/// button.
LRESULT DrawTab(const Theme& theme, const NMCUSTOMDRAW& drawing, HFONT bold);

/// Paints push buttons in the dark theme, which the system has none for. Answers a button's custom
/// draw notification; in the other themes the system draws.
LRESULT DrawButton(const Theme& theme, const NMCUSTOMDRAW& drawing, bool is_default);

/// A colour over a rectangle, and one pixel of it around one.
void FillColour(HDC device, const RECT& area, COLORREF colour);
void FrameColour(HDC device, const RECT& area, COLORREF colour);

/// Height of an entry that shows one line of `font`.
int EntryHeight(HFONT font, int dpi);

}  // namespace wordhawk
