#include "ui/framework/themed_drawing.h"

#include <string>

namespace wordhawk {
namespace {

constexpr int kEntryMargin = 4;

void DrawPart(HDC device, std::wstring_view text, RECT area, COLORREF colour, UINT format) {
    SetTextColor(device, colour);
    DrawTextW(device, text.data(), static_cast<int>(text.size()), &area,
              format | DT_SINGLELINE | DT_VCENTER);
}

}  // namespace

void FillColour(HDC device, const RECT& area, COLORREF colour) {
    SetDCBrushColor(device, colour);
    FillRect(device, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void FrameColour(HDC device, const RECT& area, COLORREF colour) {
    SetDCBrushColor(device, colour);
    FrameRect(device, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

int EntryHeight(HFONT font, int dpi) {
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(screen, &metrics);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return static_cast<int>(metrics.tmHeight) + MulDiv(3, dpi, 96);
}

void DrawEntry(const Theme& theme, const DRAWITEMSTRUCT& item, std::wstring_view text,
               std::wstring_view detail) {
    const Theme::Colours& colours = theme.Use();
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    const HDC device = item.hDC;
    FillColour(device, item.rcItem, selected ? colours.selected : colours.field);
    if (item.itemID != static_cast<UINT>(-1)) {
        const COLORREF front = selected   ? colours.selected_text
                               : disabled ? colours.disabled_text
                                          : colours.field_text;
        const int margin = MulDiv(kEntryMargin, GetDeviceCaps(device, LOGPIXELSX), 96);
        RECT area = item.rcItem;
        InflateRect(&area, -margin, 0);
        SetBkMode(device, TRANSPARENT);
        if (!detail.empty()) {
            SIZE size{};
            GetTextExtentPoint32W(device, detail.data(), static_cast<int>(detail.size()), &size);
            DrawPart(device, detail, area, selected ? front : colours.faint_text,
                     DT_RIGHT | DT_NOPREFIX);
            area.right -= size.cx + margin;
        }
        DrawPart(device, text, area, front, DT_LEFT | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
    if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
        SetTextColor(device, colours.field_text);
        SetBkColor(device, colours.field);
        DrawFocusRect(device, &item.rcItem);
    }
}

LRESULT DrawButton(const Theme& theme, const NMCUSTOMDRAW& drawing, bool is_default) {
    if (!theme.Dark() || drawing.dwDrawStage != CDDS_PREPAINT) return CDRF_DODEFAULT;
    const Theme::Colours& colours = theme.Use();
    const bool pressed = (drawing.uItemState & CDIS_SELECTED) != 0;
    const bool disabled = (drawing.uItemState & CDIS_DISABLED) != 0;
    const bool hot = (drawing.uItemState & CDIS_HOT) != 0;
    const HWND button = drawing.hdr.hwndFrom;
    RECT area{};
    GetClientRect(button, &area);
    const HDC device = drawing.hdc;
    FillColour(device, area, pressed || hot ? colours.button_pressed : colours.button);
    FrameColour(device, area, is_default && !disabled ? colours.text : colours.border);

    wchar_t caption[256];
    const int length = GetWindowTextW(button, caption, static_cast<int>(std::size(caption)));
    const HGDIOBJ before =
        SelectObject(device, reinterpret_cast<HFONT>(SendMessageW(button, WM_GETFONT, 0, 0)));
    SetBkMode(device, TRANSPARENT);
    const LRESULT cues = SendMessageW(button, WM_QUERYUISTATE, 0, 0);
    const UINT prefix = (cues & UISF_HIDEACCEL) != 0 ? DT_HIDEPREFIX : 0;
    DrawPart(device, {caption, static_cast<std::size_t>(length)}, area,
             disabled ? colours.disabled_text : colours.text, DT_CENTER | prefix);
    SelectObject(device, before);
    if (GetFocus() == button && (cues & UISF_HIDEFOCUS) == 0) {
        InflateRect(&area, -3, -3);
        FrameColour(device, area, colours.faint_text);
    }
    return CDRF_SKIPDEFAULT;
}

}  // namespace wordhawk
