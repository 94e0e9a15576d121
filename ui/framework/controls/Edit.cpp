#include "ui/framework/controls/Edit.h"

namespace wordhawk {

void Edit::Create(const Where& where) {
    Make(where, L"EDIT", WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE);
}

}  // namespace wordhawk
