// Check marks, option circles and tabs.
#include "ui/framework/themed_drawing.h"

#include <algorithm>
#include <string>

namespace wordhawk {
namespace {

constexpr int kGlyph = 13;
constexpr int kGap = 4;

int AtDensityOf(HDC device, int length) {
    return MulDiv(length, GetDeviceCaps(device, LOGPIXELSX), 96);
}

/// A pen and a brush of plain colours for the life of a scope.
class Tools {
  public:
    Tools(HDC device, COLORREF line, COLORREF inside, int width)
        : device_(device),
          pen_(CreatePen(PS_SOLID, width, line)),
          pen_before_(SelectObject(device, pen_)),
          brush_before_(SelectObject(device, GetStockObject(DC_BRUSH))) {
        SetDCBrushColor(device, inside);
    }
    ~Tools() {
        SelectObject(device_, brush_before_);
        SelectObject(device_, pen_before_);
        DeleteObject(pen_);
    }
    Tools(const Tools&) = delete;
    Tools& operator=(const Tools&) = delete;

  private:
    HDC device_;
    HPEN pen_;
    HGDIOBJ pen_before_;
    HGDIOBJ brush_before_;
};

void DrawTick(HDC device, const RECT& box, COLORREF colour) {
    const int size = static_cast<int>(box.right - box.left);
    const Tools tools(device, colour, colour, std::max(1, size / 7));
    const POINT tick[] = {{box.left + size * 2 / 10, box.top + size / 2},
                          {box.left + size * 4 / 10, box.top + size * 7 / 10},
                          {box.left + size * 8 / 10, box.top + size * 3 / 10}};
    Polyline(device, tick, static_cast<int>(std::size(tick)));
}

void DrawCircle(HDC device, RECT box, COLORREF line, COLORREF inside) {
    const Tools tools(device, line, inside, 1);
    Ellipse(device, box.left, box.top, box.right, box.bottom);
}

RECT GlyphIn(const RECT& area, int size) {
    const LONG top = area.top + (area.bottom - area.top - size) / 2;
    return {area.left, top, area.left + size, top + size};
}

std::wstring CaptionOf(HWND control) {
    wchar_t caption[256];
    const int length = GetWindowTextW(control, caption, static_cast<int>(std::size(caption)));
    return {caption, static_cast<std::size_t>(length)};
}

void DrawCaption(HDC device, HWND control, RECT area, COLORREF colour, UINT format) {
    const LRESULT cues = SendMessageW(control, WM_QUERYUISTATE, 0, 0);
    if ((cues & UISF_HIDEACCEL) != 0) format |= DT_HIDEPREFIX;
    const std::wstring caption = CaptionOf(control);
    SetBkMode(device, TRANSPARENT);
    SetTextColor(device, colour);
    DrawTextW(device, caption.c_str(), static_cast<int>(caption.size()), &area,
              format | DT_SINGLELINE | DT_VCENTER);
}

bool ShowsFocus(HWND control) {
    return GetFocus() == control &&
           (SendMessageW(control, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) == 0;
}

HFONT FontOf(HWND control) {
    return reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
}

}  // namespace

void DrawCheckedEntry(const Theme& theme, const DRAWITEMSTRUCT& item, std::wstring_view text,
                      EntryRole role) {
    const Theme::Colours& colours = theme.Use();
    const bool checked = (item.itemState & ODS_SELECTED) != 0;
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    const bool current = role == EntryRole::Current && !disabled;
    const HDC device = item.hDC;
    FillColour(device, item.rcItem, current ? colours.selected : colours.field);
    if (item.itemID == static_cast<UINT>(-1)) return;
    const COLORREF front = current    ? colours.selected_text
                           : disabled ? colours.disabled_text
                                      : colours.field_text;
    RECT area = item.rcItem;
    area.left += AtDensityOf(device, kGap);
    const RECT glyph = GlyphIn(area, AtDensityOf(device, kGlyph));
    FillColour(device, glyph, colours.field);
    FrameColour(device, glyph, disabled ? colours.disabled_text : colours.field_text);
    if (checked) DrawTick(device, glyph, disabled ? colours.disabled_text : colours.field_text);
    area.left = glyph.right + AtDensityOf(device, kGap);
    SetBkMode(device, TRANSPARENT);
    SetTextColor(device, front);
    DrawTextW(device, text.data(), static_cast<int>(text.size()), &area,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
        SetTextColor(device, colours.field_text);
        SetBkColor(device, colours.field);
        DrawFocusRect(device, &item.rcItem);
    }
}

LRESULT DrawCheckBox(const Theme& theme, const NMCUSTOMDRAW& drawing) {
    if (!theme.Dark() || drawing.dwDrawStage != CDDS_PREPAINT) return CDRF_DODEFAULT;
    const Theme::Colours& colours = theme.Use();
    const HWND control = drawing.hdr.hwndFrom;
    const HDC device = drawing.hdc;
    const bool enabled = IsWindowEnabled(control) != FALSE;
    const bool checked = SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
    const LONG_PTR kind = GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK;
    RECT area{};
    GetClientRect(control, &area);
    FillColour(device, area, colours.background);
    const COLORREF line = enabled ? colours.text : colours.disabled_text;
    RECT glyph = GlyphIn(area, AtDensityOf(device, kGlyph));
    if (kind == BS_AUTORADIOBUTTON) {
        DrawCircle(device, glyph, line, colours.field);
        const int inset = static_cast<int>(glyph.right - glyph.left) * 3 / 10;
        InflateRect(&glyph, -inset, -inset);
        if (checked) DrawCircle(device, glyph, line, line);
    } else {
        FillColour(device, glyph, colours.field);
        FrameColour(device, glyph, line);
        if (checked) DrawTick(device, glyph, line);
    }
    const HGDIOBJ before = SelectObject(device, FontOf(control));
    area.left += AtDensityOf(device, kGlyph + kGap);
    DrawCaption(device, control, area, line, DT_LEFT);
    SelectObject(device, before);
    if (ShowsFocus(control)) FrameColour(device, area, colours.faint_text);
    return CDRF_SKIPDEFAULT;
}

LRESULT DrawTab(const Theme& theme, const NMCUSTOMDRAW& drawing, HFONT bold) {
    if (drawing.dwDrawStage != CDDS_PREPAINT) return CDRF_DODEFAULT;
    const Theme::Colours& colours = theme.Use();
    const HWND control = drawing.hdr.hwndFrom;
    const HDC device = drawing.hdc;
    const bool current = SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
    RECT area{};
    GetClientRect(control, &area);
    FillColour(device, area, colours.background);
    const HGDIOBJ before = SelectObject(device, current ? bold : FontOf(control));
    DrawCaption(device, control, area, colours.text, DT_CENTER);
    SelectObject(device, before);
    RECT line = area;
    line.top = line.bottom - AtDensityOf(device, current ? 3 : 1);
    FillColour(device, line, current ? colours.accent : colours.border);
    if (ShowsFocus(control)) {
        RECT focus = area;
        InflateRect(&focus, -AtDensityOf(device, 3), -AtDensityOf(device, 4));
        FrameColour(device, focus, colours.faint_text);
    }
    return CDRF_SKIPDEFAULT;
}

}  // namespace wordhawk
