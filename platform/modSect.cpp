#include "platform/modSect.h"

namespace wordhawk::modSect {

std::wstring_view StripNull(std::wstring_view text) { return text.substr(0, text.find(L'\0')); }

std::wstring_view OneLine(std::wstring_view text) {
    return text.substr(0, text.find_first_of(L"\r\n"));
}

}  // namespace wordhawk::modSect
