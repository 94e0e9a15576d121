#pragma once

#include "platform/text.h"
#include "platform/win32/win.h"

#include <commctrl.h>

#include <string>
#include <string_view>
#include <vector>

/// What a window's captions say, for tests that look at all of them.
namespace wordhawk::test {

/// The letter that "&" marks, in upper case; 0 when none is marked.
inline wchar_t AccessKey(std::wstring_view text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != L'&') continue;
        if (text[i + 1] != L'&') return Upper(text.substr(i + 1, 1))[0];
        ++i;
    }
    return 0;
}

inline std::wstring ClassOf(HWND control) {
    wchar_t name[64]{};
    GetClassNameW(control, name, 64);
    return name;
}

inline std::wstring TextOf(HWND control) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(control, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// The buttons and labels of a window that can be seen.
inline std::vector<HWND> Captions(HWND window) {
    std::vector<HWND> found;
    EnumChildWindows(
        window,
        [](HWND control, LPARAM list) -> BOOL {
            const std::wstring type = ClassOf(control);
            const bool caption =
                EqualIgnoringCase(type, WC_BUTTONW) || EqualIgnoringCase(type, WC_STATICW);
            if (caption && IsWindowVisible(control)) {
                reinterpret_cast<std::vector<HWND>*>(list)->push_back(control);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

}  // namespace wordhawk::test
