#include "platform/code_page_table.h"

#include <iconv.h>

#include <cstdint>
#include <string>

namespace wordhawk {

bool SystemCodePageTable(int number, std::array<wchar_t, 256>& table) {
    const std::string name = "CP" + std::to_string(number);
    const iconv_t converter = iconv_open("UTF-16LE", name.c_str());
    if (converter == reinterpret_cast<iconv_t>(-1)) return false;
    for (int byte = 0; byte < 256; ++byte) {
        // One byte a call with a fresh state: some pages combine neighbouring bytes.
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
        char in = static_cast<char>(byte);
        unsigned char out[8];
        char* in_at = &in;
        char* out_at = reinterpret_cast<char*>(out);
        std::size_t in_left = 1;
        std::size_t out_left = sizeof out;
        std::size_t failed = iconv(converter, &in_at, &in_left, &out_at, &out_left);
        if (failed != static_cast<std::size_t>(-1)) {
            failed = iconv(converter, nullptr, nullptr, &out_at, &out_left);
        }
        const bool one_unit = failed != static_cast<std::size_t>(-1) && out_left == sizeof out - 2;
        table[static_cast<std::size_t>(byte)] =
            one_unit ? static_cast<wchar_t>(out[0] | (out[1] << 8)) : static_cast<wchar_t>(byte);
    }
    iconv_close(converter);
    return true;
}

}  // namespace wordhawk
