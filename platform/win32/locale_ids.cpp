#include "platform/locale_ids.h"

#include "platform/win32/win.h"

namespace wordhawk {

int SystemDefaultLocale() { return static_cast<int>(GetSystemDefaultLCID()); }

int SystemAnsiPage(int locale) {
    const UINT page = GetACP();
    CPINFO info{};
    // UTF-8 counts as a page of up to four bytes a character.
    const bool single_byte = GetCPInfo(page, &info) && info.MaxCharSize == 1;
    return single_byte ? static_cast<int>(page) : AnsiPageOfLocale(locale);
}

}  // namespace wordhawk
