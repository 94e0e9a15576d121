#include "ui/framework/theme.h"

#include "platform/win32/system_library.h"

#include <dwmapi.h>
#include <uxtheme.h>

#include <cstring>

namespace wordhawk {
namespace {

bool HighContrastIsOn() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

bool AppsAreDark() {
    DWORD light = 1;
    DWORD size = sizeof light;
    RegGetValueW(HKEY_CURRENT_USER,
                 L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                 L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
    return light == 0;
}

Theme::Colours SystemColours() {
    Theme::Colours colours{};
    colours.background = GetSysColor(COLOR_BTNFACE);
    colours.text = GetSysColor(COLOR_BTNTEXT);
    colours.field = GetSysColor(COLOR_WINDOW);
    colours.field_text = GetSysColor(COLOR_WINDOWTEXT);
    colours.faint_text = GetSysColor(COLOR_WINDOWTEXT);
    colours.disabled_text = GetSysColor(COLOR_GRAYTEXT);
    colours.selected = GetSysColor(COLOR_HIGHLIGHT);
    colours.selected_text = GetSysColor(COLOR_HIGHLIGHTTEXT);
    colours.button = GetSysColor(COLOR_BTNFACE);
    colours.button_pressed = GetSysColor(COLOR_BTNSHADOW);
    colours.border = GetSysColor(COLOR_WINDOWFRAME);
    colours.accent = GetSysColor(COLOR_HOTLIGHT);
    return colours;
}

Theme::Colours LightColours() {
    Theme::Colours colours = SystemColours();
    colours.faint_text = RGB(96, 96, 96);
    colours.border = RGB(160, 160, 160);
    colours.accent = RGB(176, 32, 32);
    return colours;
}

// Every text stands out from its background by a ratio of at least 4.5 to 1.
Theme::Colours DarkColours() {
    Theme::Colours colours{};
    colours.background = RGB(32, 32, 32);
    colours.text = RGB(240, 240, 240);
    colours.field = RGB(25, 25, 25);
    colours.field_text = RGB(222, 221, 220);
    colours.faint_text = RGB(160, 160, 160);
    colours.disabled_text = RGB(130, 130, 130);
    colours.selected = RGB(0, 90, 158);
    colours.selected_text = RGB(255, 255, 255);
    colours.button = RGB(51, 51, 51);
    colours.button_pressed = RGB(76, 76, 76);
    colours.border = RGB(110, 110, 110);
    colours.accent = RGB(255, 138, 128);
    return colours;
}

}  // namespace

Theme::Theme() { Refresh(); }

bool Theme::Refresh() {
    const Kind kind = HighContrastIsOn() ? Kind::HighContrast
                      : AppsAreDark()    ? Kind::Dark
                                         : Kind::Light;
    const Colours colours = kind == Kind::Dark           ? DarkColours()
                            : kind == Kind::HighContrast ? SystemColours()
                                                         : LightColours();
    const bool same =
        background_ && kind == kind_ && std::memcmp(&colours, &colours_, sizeof colours) == 0;
    if (same) return false;
    kind_ = kind;
    colours_ = colours;
    background_ = BrushHandle(CreateSolidBrush(colours.background));
    field_ = BrushHandle(CreateSolidBrush(colours.field));
    return true;
}

HBRUSH Theme::Prepare(UINT message, HDC device, HWND control) const {
    const bool field = message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX;
    const bool disabled = message == WM_CTLCOLORSTATIC && !IsWindowEnabled(control);
    SetTextColor(device, disabled ? colours_.disabled_text
                         : field  ? colours_.field_text
                                  : colours_.text);
    SetBkColor(device, field ? colours_.field : colours_.background);
    return field ? field_.Get() : background_.Get();
}

void Theme::Decorate(HWND form) const {
    constexpr DWORD kUseImmersiveDarkMode = 20;
    const BOOL dark = Dark();
    static const auto set_attribute =
        SystemFunction<decltype(DwmSetWindowAttribute)>(L"dwmapi.dll", "DwmSetWindowAttribute");
    if (set_attribute != nullptr) set_attribute(form, kUseImmersiveDarkMode, &dark, sizeof dark);
    EnumChildWindows(
        form,
        [](HWND child, LPARAM theme) {
            reinterpret_cast<const Theme*>(theme)->DecorateControl(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(this));
    RedrawWindow(form, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_FRAME);
}

void Theme::DecorateControl(HWND control) const {
    static const auto set_theme =
        SystemFunction<decltype(SetWindowTheme)>(L"uxtheme.dll", "SetWindowTheme");
    if (set_theme != nullptr) set_theme(control, Dark() ? L"DarkMode_Explorer" : nullptr, nullptr);
}

}  // namespace wordhawk
