#include "platform/code_page_table.h"

#include "platform/win32/win.h"

namespace wordhawk {

bool SystemCodePageTable(int number, std::array<wchar_t, 256>& table) {
    const auto page = static_cast<UINT>(number);
    if (!IsValidCodePage(page)) return false;
    for (int byte = 0; byte < 256; ++byte) {
        const char in = static_cast<char>(byte);
        wchar_t out = 0;
        const int got = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, &in, 1, &out, 1);
        // Some undefined bytes are given private-use code points; they stand for themselves here.
        const bool defined = got == 1 && (out < 0xE000 || out > 0xF8FF);
        table[static_cast<std::size_t>(byte)] = defined ? out : static_cast<wchar_t>(byte);
    }
    return true;
}

}  // namespace wordhawk
