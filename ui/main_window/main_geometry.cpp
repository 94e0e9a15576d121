#include "ui/main_window/main_geometry.h"

#include <algorithm>

namespace wordhawk {
namespace {

/// First size, in units of 1/96 inch, without the options panel.
constexpr int kFirstWidth = 560;
constexpr int kFirstHeight = 620;

void MoveTo(HWND form, const RECT& bounds) {
    SetWindowPos(form, nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
                 bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

bool IsMaximized(HWND form) { return IsZoomed(form) != FALSE; }

}  // namespace

void MainGeometry::Centre(HWND form, const layout::Measure& measure) {
    int width = measure.Scaled(kFirstWidth);
    if (options_shown_) width += controls_.OptionsWidth(measure);
    const int height = measure.Scaled(kFirstHeight);
    const int left = (GetSystemMetrics(SM_CXSCREEN) - width) / 2;
    const int top = (GetSystemMetrics(SM_CYSCREEN) - height) / 2;
    MoveTo(form, {left, top, left + width, top + height});
}

void MainGeometry::Restore(HWND form, const layout::Measure& measure) {
    const std::optional<SavedPlacement> saved = store_.Load();
    if (!saved) return;
    const int options = options_shown_ ? controls_.OptionsWidth(measure) : 0;
    const SIZE smallest = Smallest(measure);
    RECT bounds = saved->bounds;
    const LONG width = std::max<LONG>(
        MulDiv(static_cast<int>(bounds.right - bounds.left), measure.dpi, saved->dpi),
        smallest.cx - options);
    const LONG height = std::max<LONG>(
        MulDiv(static_cast<int>(bounds.bottom - bounds.top), measure.dpi, saved->dpi), smallest.cy);
    bounds.right = bounds.left + width + options;
    bounds.bottom = bounds.top + height;
    MoveTo(form, WithinScreen(bounds));
    if (saved->maximized) ShowWindow(form, SW_SHOWMAXIMIZED);
}

void MainGeometry::Save(HWND form, const layout::Measure& measure) const {
    WINDOWPLACEMENT now{};
    now.length = sizeof now;
    if (!GetWindowPlacement(form, &now)) return;
    SavedPlacement placement;
    placement.bounds = now.rcNormalPosition;
    if (!IsMaximized(form) && !IsIconic(form)) GetWindowRect(form, &placement.bounds);
    if (options_shown_) placement.bounds.right -= controls_.OptionsWidth(measure);
    placement.dpi = measure.dpi;
    placement.maximized = IsMaximized(form);
    store_.Save(placement);
}

void MainGeometry::ToggleOptions(HWND form, const layout::Measure& measure) {
    options_shown_ = !options_shown_;
    ShowWindow(controls_.pic2.Handle(), options_shown_ ? SW_SHOW : SW_HIDE);
    if (IsMaximized(form)) {
        Arrange(form, measure);
        return;
    }
    RECT bounds{};
    GetWindowRect(form, &bounds);
    const int change = controls_.OptionsWidth(measure);
    bounds.right += options_shown_ ? change : -change;
    bounds.right = std::max(bounds.right, bounds.left + Smallest(measure).cx);
    MoveTo(form, IsWindowVisible(form) ? WithinScreen(bounds) : bounds);
    Arrange(form, measure);
}

SIZE MainGeometry::Smallest(const layout::Measure& measure) const {
    const int options = options_shown_ ? controls_.OptionsWidth(measure) : 0;
    return {measure.Scaled(kMinimumWidth) + options, measure.Scaled(kMinimumHeight)};
}

void MainGeometry::Arrange(HWND form, const layout::Measure& measure) {
    RECT client{};
    GetClientRect(form, &client);
    const int options = options_shown_ ? controls_.OptionsWidth(measure) : 0;
    const int main_width = std::max(0, static_cast<int>(client.right) - options);
    const int height = static_cast<int>(client.bottom);
    // What was drawn for another place or size is no good here, and Wine would keep it.
    constexpr UINT kFlags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;
    SetWindowPos(controls_.pic1.Handle(), nullptr, 0, 0, main_width, height, kFlags);
    SetWindowPos(controls_.pic2.Handle(), nullptr, main_width, 0, options, height, kFlags);
    controls_.ArrangeMain(measure);
    if (options_shown_) controls_.ArrangeOptions(measure);
}

}  // namespace wordhawk
