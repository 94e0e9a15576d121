#include "ui/framework/dark_frames.h"

#include "platform/text.h"
#include "ui/framework/themed_drawing.h"

#include <algorithm>

namespace wordhawk {

DarkFrames::Sort DarkFrames::SortOf(HWND control) {
    wchar_t name[64]{};
    GetClassNameW(control, name, static_cast<int>(std::size(name)));
    if (EqualIgnoringCase(name, L"RICHEDIT50W")) return Sort::Document;
    if (EqualIgnoringCase(name, L"COMBOBOX")) return Sort::Combo;
    const bool edged = (GetWindowLongPtrW(control, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
    return edged ? Sort::Box : Sort::Other;
}

void DarkFrames::Attach(HWND form) {
    EnumChildWindows(
        form,
        [](HWND child, LPARAM self) {
            reinterpret_cast<DarkFrames*>(self)->AttachTo(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(this));
}

void DarkFrames::AttachTo(HWND control) {
    const Sort sort = SortOf(control);
    if (sort == Sort::Other) return;
    std::erase_if(subclasses_, [](const auto& subclass) { return !subclass->Installed(); });
    auto subclass = std::make_unique<Subclass>();
    subclass->Install(
        control,
        [this, control, sort](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
            if (sort != Sort::Combo || message != WM_PAINT || !theme_.Dark()) return {};
            PaintCombo(control);
            return 0;
        },
        [this, control, sort](UINT message) {
            const bool framed = sort == Sort::Document
                                    ? theme_.Current() != Theme::Kind::HighContrast
                                    : sort == Sort::Box && theme_.Dark();
            if (message == WM_NCPAINT && framed) PaintFrame(control, sort);
        });
    subclasses_.push_back(std::move(subclass));
}

void DarkFrames::PaintFrame(HWND control, Sort sort) const {
    const HDC device = GetWindowDC(control);
    if (device == nullptr) return;
    RECT area{};
    GetWindowRect(control, &area);
    OffsetRect(&area, -area.left, -area.top);
    FrameColour(device, area, theme_.Use().border);
    if (sort == Sort::Box) {
        // The edge of a box is two pixels wide: inside the line, the box's own colour.
        InflateRect(&area, -1, -1);
        FrameColour(device, area, theme_.Use().field);
    }
    ReleaseDC(control, device);
}

void DarkFrames::PaintCombo(HWND combo) const {
    PAINTSTRUCT paint{};
    const HDC device = BeginPaint(combo, &paint);
    RECT area{};
    GetClientRect(combo, &area);
    const Theme::Colours& colours = theme_.Use();
    FillColour(device, area, colours.field);
    FrameColour(device, area, GetFocus() == combo ? colours.text : colours.border);

    const int arrow = std::max(4, static_cast<int>(area.bottom - area.top) / 5);
    const int centre_x = static_cast<int>(area.right) - 3 * arrow;
    const int centre_y = static_cast<int>(area.bottom) / 2;
    const HGDIOBJ pen_before = SelectObject(device, GetStockObject(DC_PEN));
    SetDCPenColor(device, IsWindowEnabled(combo) ? colours.text : colours.disabled_text);
    for (int line = 0; line < 2; ++line) {
        const POINT chevron[] = {{centre_x - arrow, centre_y - arrow / 2 + line},
                                 {centre_x, centre_y + arrow / 2 + line},
                                 {centre_x + arrow + 1, centre_y - arrow / 2 - 1 + line}};
        Polyline(device, chevron, static_cast<int>(std::size(chevron)));
    }
    SelectObject(device, pen_before);

    wchar_t text[256]{};
    const int length = GetWindowTextW(combo, text, static_cast<int>(std::size(text)));
    const HGDIOBJ font_before =
        SelectObject(device, reinterpret_cast<HFONT>(SendMessageW(combo, WM_GETFONT, 0, 0)));
    RECT inner = area;
    inner.left += 6;
    inner.right = centre_x - 2 * arrow;
    SetBkMode(device, TRANSPARENT);
    SetTextColor(device, IsWindowEnabled(combo) ? colours.field_text : colours.disabled_text);
    DrawTextW(device, text, length, &inner,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(device, font_before);
    EndPaint(combo, &paint);
}

}  // namespace wordhawk
