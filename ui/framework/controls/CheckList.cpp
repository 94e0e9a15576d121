#include "ui/framework/controls/CheckList.h"

#include <algorithm>

namespace wordhawk {

void CheckList::Create(const Where& where, Columns columns) {
    const DWORD style = columns == Columns::Several ? LBS_MULTICOLUMN | WS_HSCROLL : WS_VSCROLL;
    CreateWithStyle(where, LBS_MULTIPLESEL | style);
}

int CheckList::Current() const {
    return has_current_ && Count() > 0 ? Index(LB_GETCARETINDEX) : -1;
}

void CheckList::SetCurrent(int index) {
    has_current_ = index >= 0 && index < Count();
    if (has_current_) Send(LB_SETCARETINDEX, static_cast<WPARAM>(index), FALSE);
    Redraw();
}

void CheckList::TakeCurrent() {
    has_current_ = Count() > 0;
    // The one that was current shows it no longer.
    Redraw();
}

void CheckList::RemoveCurrent() {
    const int at = Current();
    if (at < 0) return;
    RemoveAt(at);
    SetCurrent(std::min(at, Count() - 1));
}

}  // namespace wordhawk
