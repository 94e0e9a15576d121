#include "platform/modCDlg.h"

namespace wordhawk::modCDlg {

bool ShowOpen(const Request&, std::wstring&, std::wstring&) { return false; }

bool ShowSave(const Request&, std::wstring_view, int&, std::wstring&, std::wstring&) {
    return false;
}

}  // namespace wordhawk::modCDlg
