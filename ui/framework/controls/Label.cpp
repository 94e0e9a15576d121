#include "ui/framework/controls/Label.h"

namespace wordhawk {

void Label::Create(const Where& where, Kind kind) {
    // SS_NOTIFY makes clicks, tool tips and cursors work on a text.
    constexpr DWORD kPlain = SS_NOTIFY | SS_NOPREFIX | SS_CENTERIMAGE;
    DWORD style = SS_NOTIFY;
    if (kind == Kind::Value) style = kPlain | SS_ENDELLIPSIS;
    if (kind == Kind::Path) style = kPlain | SS_PATHELLIPSIS;
    Make(where, L"STATIC", style, kind == Kind::Path ? WS_EX_STATICEDGE : 0);
    if (kind == Kind::Hidden) SetVisible(false);
}

}  // namespace wordhawk
