#include "ui/framework/controls/PercentBar.h"

#include "ui/framework/themed_drawing.h"

namespace wordhawk {
namespace {

/// The number in one colour on the bar and in another beside it, each drawn within its own part.
void DrawPart(HDC device, const RECT& whole, const RECT& part, COLORREF back, COLORREF front,
              const std::wstring& text) {
    if (part.right <= part.left) return;
    FillColour(device, part, back);
    const int saved = SaveDC(device);
    IntersectClipRect(device, part.left, part.top, part.right, part.bottom);
    SetBkMode(device, TRANSPARENT);
    SetTextColor(device, front);
    RECT area = whole;
    DrawTextW(device, text.c_str(), static_cast<int>(text.size()), &area,
              DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX);
    RestoreDC(device, saved);
}

}  // namespace

void PercentBar::Create(const Where& where) {
    Make(where, L"STATIC", SS_OWNERDRAW);
    SetText(L"0%");
}

void PercentBar::SetPercent(int percent) {
    if (percent == percent_) return;
    percent_ = percent;
    SetText(std::to_wstring(percent) + L"%");
    Redraw();
}

void PercentBar::Draw(const Theme& theme, const DRAWITEMSTRUCT& item) const {
    const Theme::Colours& colours = theme.Use();
    const HGDIOBJ before =
        SelectObject(item.hDC, reinterpret_cast<HFONT>(SendMessageW(handle_, WM_GETFONT, 0, 0)));
    RECT whole = item.rcItem;
    FrameColour(item.hDC, whole, colours.border);
    InflateRect(&whole, -1, -1);
    RECT done = whole;
    done.right = done.left + MulDiv(static_cast<int>(whole.right - whole.left), percent_, 100);
    RECT rest = whole;
    rest.left = done.right;
    const std::wstring text = std::to_wstring(percent_) + L"%";
    DrawPart(item.hDC, whole, done, colours.selected, colours.selected_text, text);
    DrawPart(item.hDC, whole, rest, colours.field, colours.field_text, text);
    SelectObject(item.hDC, before);
}

}  // namespace wordhawk
