#include "ui/framework/controls/Icon.h"

namespace wordhawk {

void Icon::Create(const Where& where, WORD resource) {
    Make(where, L"STATIC", SS_ICON | SS_CENTERIMAGE);
    const HANDLE icon = LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(resource),
                                   IMAGE_ICON, 0, 0, LR_DEFAULTSIZE | LR_SHARED);
    Send(STM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
}

}  // namespace wordhawk
