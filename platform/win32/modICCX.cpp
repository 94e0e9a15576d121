#include "platform/modICCX.h"

#include "platform/win32/win.h"

#include <commctrl.h>

namespace wordhawk::modICCX {

void InitCommonControlsVB(std::uint32_t flags) {
    INITCOMMONCONTROLSEX record{};
    static_assert(sizeof record == 8);
    record.dwSize = sizeof record;
    record.dwICC = flags;
    if (!InitCommonControlsEx(&record)) InitCommonControls();
}

}  // namespace wordhawk::modICCX
