#include "ui/framework/FormDialog.h"

#include "platform/text.h"
#include "ui/framework/themed_drawing.h"

#include <commctrl.h>

#include <algorithm>

namespace wordhawk {
namespace {

bool IsButton(HWND window) {
    wchar_t name[16]{};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return EqualIgnoringCase(name, L"BUTTON");
}

bool IsPushButton(HWND window) {
    const LONG_PTR kind = GetWindowLongPtrW(window, GWL_STYLE) & BS_TYPEMASK;
    return IsButton(window) && (kind == BS_PUSHBUTTON || kind == BS_DEFPUSHBUTTON);
}

/// `bounds` moved so that as much as possible of it is on the monitor where most of it is.
RECT OnScreen(RECT bounds) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    if (!GetMonitorInfoW(MonitorFromRect(&bounds, MONITOR_DEFAULTTONEAREST), &monitor))
        return bounds;
    const RECT& work = monitor.rcWork;
    LONG x = std::min<LONG>(0, work.right - bounds.right);
    x = std::max(x, work.left - bounds.left);
    LONG y = std::min<LONG>(0, work.bottom - bounds.bottom);
    y = std::max(y, work.top - bounds.top);
    OffsetRect(&bounds, static_cast<int>(x), static_cast<int>(y));
    return bounds;
}

}  // namespace

std::wstring FormDialog::Caption() const {
    std::wstring caption(static_cast<std::size_t>(GetWindowTextLengthW(handle_)) + 1, L'\0');
    caption.resize(static_cast<std::size_t>(
        GetWindowTextW(handle_, caption.data(), static_cast<int>(caption.size()))));
    return caption;
}

void FormDialog::SetCaption(const std::wstring& caption) {
    SetWindowTextW(handle_, caption.c_str());
}

void FormDialog::OnInit() {
    tips_.Create(handle_);
    MakeControls();
    ApplyFonts();
    frames_.Attach(handle_);
    theme_.Decorate(handle_);
    Form_Load();
    placed_ = true;
    Fit();
    FirstControl().SetFocus();
}

void FormDialog::OnShown() { FirstControl().SetFocus(); }

void FormDialog::OnFontsChanged() {
    OnMeasure();
    if (placed_) Fit();
}

SIZE FormDialog::NaturalSize() const {
    const layout::NodePtr root = Layout();
    const layout::Measure measure = MeasureNow();
    const int width = root->Width(measure);
    RECT frame{0, 0, width, root->Height(width, measure)};
    AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongPtrW(handle_, GWL_STYLE)),
                             FALSE, static_cast<DWORD>(GetWindowLongPtrW(handle_, GWL_EXSTYLE)),
                             static_cast<UINT>(Dpi()));
    return {frame.right - frame.left, frame.bottom - frame.top};
}

void FormDialog::Fit() {
    const SIZE natural = NaturalSize();
    RECT now{};
    GetWindowRect(handle_, &now);
    RECT wanted = now;
    if (IsWindowVisible(handle_)) {
        const bool sizable = (GetWindowLongPtrW(handle_, GWL_STYLE) & WS_THICKFRAME) != 0;
        wanted.right =
            now.left + (sizable ? std::max(natural.cx, now.right - now.left) : natural.cx);
        wanted.bottom =
            now.top + (sizable ? std::max(natural.cy, now.bottom - now.top) : natural.cy);
    } else {
        const HWND owner = GetWindow(handle_, GW_OWNER);
        RECT over{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
        if (owner != nullptr && IsWindowVisible(owner)) GetWindowRect(owner, &over);
        wanted.left = (over.left + over.right - natural.cx) / 2;
        wanted.top = (over.top + over.bottom - natural.cy) / 2;
        wanted.right = wanted.left + natural.cx;
        wanted.bottom = wanted.top + natural.cy;
    }
    wanted = OnScreen(wanted);
    SetWindowPos(handle_, nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                 wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
    RECT client{};
    GetClientRect(handle_, &client);
    OnSize(static_cast<int>(client.right), static_cast<int>(client.bottom));
}

void FormDialog::OnSize(int width, int height) {
    if (placed_) Arrange(*Layout(), {0, 0, width, height}, MeasureNow());
}

void FormDialog::OnMinimumSize(SIZE& smallest) {
    if (placed_) smallest = NaturalSize();
}

bool FormDialog::OnKey(const MSG& message) {
    if (message.message != WM_KEYDOWN || message.wParam != VK_RETURN) return false;
    // The dialog manager looks for the button that Enter presses among the form's own children, and
    // so does not see one that is in a panel.
    const HWND focus = GetFocus();
    if (!IsPushButton(focus)) return false;
    SendMessageW(focus, BM_CLICK, 0, 0);
    return true;
}

FormDialog::Reply FormDialog::OnNotify(NMHDR& news) {
    if (news.code != static_cast<UINT>(NM_CUSTOMDRAW) || !IsButton(news.hwndFrom)) return {};
    const auto& drawing = reinterpret_cast<const NMCUSTOMDRAW&>(news);
    const LONG_PTR style = GetWindowLongPtrW(news.hwndFrom, GWL_STYLE);
    if (!IsPushButton(news.hwndFrom)) {
        return (style & BS_PUSHLIKE) != 0 ? DrawTab(theme_, drawing, BoldFont())
                                          : DrawCheckBox(theme_, drawing);
    }
    return DrawButton(theme_, drawing, (style & BS_TYPEMASK) == BS_DEFPUSHBUTTON);
}

HBRUSH FormDialog::OnControlColor(UINT message, HDC device, HWND control) {
    return theme_.Prepare(message, device, control);
}

bool FormDialog::OnMeasureItem(MEASUREITEMSTRUCT& item) {
    item.itemHeight = static_cast<UINT>(EntryHeight(Font(), Dpi()));
    return true;
}

void FormDialog::OnAppearanceChanged() {
    if (theme_.Refresh()) theme_.Decorate(handle_);
}

}  // namespace wordhawk
