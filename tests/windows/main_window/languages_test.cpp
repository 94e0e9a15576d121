#include "platform/folders.h"
#include "tests/windows/captions.h"
#include "tests/windows/main_window/main_window_fixture.h"

#include <map>

namespace wordhawk::test {
namespace {

int TextWidth(HWND control) {
    const HDC screen = GetDC(control);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    const HGDIOBJ before = SelectObject(screen, font);
    RECT bounds{};
    DrawTextW(screen, TextOf(control).c_str(), -1, &bounds, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(screen, before);
    ReleaseDC(control, screen);
    return static_cast<int>(bounds.right);
}

class WindowInLanguage : public MainWindowTest, public testing::WithParamInterface<int> {
  protected:
    WindowInLanguage() {
        Setting(L"Language", std::to_wstring(GetParam()));
        Setting(L"ScoreBox", L"1");
        Setting(L"OpenSave", L"1");
        Setting(L"OpenWOptions", L"1");
        InstallShipped();
    }
};

/// Every caption that can be seen has room for its whole text.
void ExpectNothingClipped(HWND window) {
    for (const HWND control : Captions(window)) {
        const std::wstring text = TextOf(control);
        // The frame of a button, or the box beside its text, takes some of its room.
        const LONG_PTR type = GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK;
        const int frame = !EqualIgnoringCase(ClassOf(control), WC_BUTTONW) ? 0
                          : type == BS_AUTOCHECKBOX                        ? 20
                                                                           : 6;
        RECT area{};
        GetClientRect(control, &area);
        EXPECT_LE(TextWidth(control) + frame, area.right) << ToUtf8(text);
    }
}

TEST_P(WindowInLanguage, HasNoClippedText) {
    OpenWith(L"teh helo wrld");
    EXPECT_EQ(program_->state.LanguageId, std::to_wstring(GetParam()));
    ExpectNothingClipped(Form().Handle());
    Click(Form().cmdOptions);
    const SIZE smallest{MainGeometry::kMinimumWidth, MainGeometry::kMinimumHeight};
    SetWindowPos(Form().Handle(), nullptr, 0, 0, smallest.cx, smallest.cy,
                 SWP_NOMOVE | SWP_NOZORDER);
    Pump();
    RECT bounds{};
    GetWindowRect(Form().Handle(), &bounds);
    ASSERT_EQ(bounds.right - bounds.left, smallest.cx);
    ExpectNothingClipped(Form().Handle());
}

TEST_P(WindowInLanguage, HasNoAccessKeyTwice) {
    OpenWith(L"teh helo wrld");
    std::map<wchar_t, std::string> keys;
    // These two work in every language, whatever the captions are.
    keys[L'T'] = keys[L'E'] = "the window itself";
    for (const HWND control : Captions(Form().Handle())) {
        const std::wstring text = TextOf(control);
        const wchar_t key = AccessKey(text);
        const bool fixed = (control == Form().lblDum[1].Handle() && key == L'T') ||
                           (control == Form().lblCnt.Handle() && key == L'E');
        if (key == 0 || fixed) continue;
        EXPECT_TRUE(keys.emplace(key, ToUtf8(text)).second)
            << ToUtf8(text) << " has the key of " << keys[key];
    }
    EXPECT_GE(keys.size(), 12u);
    EXPECT_EQ(AccessKey(Form().lblDum[1].Text()), L'T');
}

INSTANTIATE_TEST_SUITE_P(All, WindowInLanguage,
                         testing::Values(1033, 1030, 1031, 1034, 1036, 1040, 1043, 1045, 1046, 1053,
                                         2070),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace wordhawk::test
