#include "ui/framework/controls/Label.h"

namespace wordhawk {

void Label::Create(const Where& where, Kind kind) {
    // SS_NOTIFY makes clicks, tool tips and cursors work on a text.
    const DWORD style =
        kind == Kind::Value ? SS_NOTIFY | SS_NOPREFIX | SS_ENDELLIPSIS | SS_CENTERIMAGE : SS_NOTIFY;
    Make(where, L"STATIC", style);
    if (kind == Kind::Hidden) SetVisible(false);
}

}  // namespace wordhawk
