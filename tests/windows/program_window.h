#pragma once

#include "platform/win32/win.h"
#include "ui/main_window/new_spell_controls.h"

#include <functional>

/// Looking at the main window of a program that runs beside the tests.
namespace wordhawk::test {

/// Asks again and again for up to a minute, which is long on a busy machine.
inline bool WaitUntil(const std::function<bool()>& done) {
    constexpr ULONGLONG kPatience = 60'000;  // milliseconds
    const ULONGLONG end = GetTickCount64() + kPatience;
    while (!done()) {
        if (GetTickCount64() > end) return false;
        Sleep(10);
    }
    return true;
}

/// The control with this number, however deep; null when there is none.
inline HWND ControlOf(HWND window, int id) {
    struct Search {
        int id;
        HWND found;
    } search{id, nullptr};
    EnumChildWindows(
        window,
        [](HWND child, LPARAM data) {
            auto& wanted = *reinterpret_cast<Search*>(data);
            if (GetDlgCtrlID(child) == wanted.id) wanted.found = child;
            return wanted.found == nullptr ? TRUE : FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// How many unknown words the window lists.
inline int WordsListed(HWND window) {
    return static_cast<int>(SendMessageW(ControlOf(window, main_id::lstNID), LB_GETCOUNT, 0, 0));
}

}  // namespace wordhawk::test
