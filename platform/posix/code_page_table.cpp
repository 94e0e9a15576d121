#include "platform/code_page_table.h"

#include <iconv.h>

#include <algorithm>
#include <cstdint>
#include <string>

namespace wordhawk {
namespace {

/// The usual page, which every start would otherwise load two converters for.
void Fill1252(std::array<wchar_t, 256>& table) {
    constexpr std::array<wchar_t, 32> kFrom128 = {
        0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021, 0x2C6,  0x2030, 0x160,
        0x2039, 0x152,  0x8D,   0x17D,  0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};
    for (std::size_t byte = 0; byte < 256; ++byte) table[byte] = static_cast<wchar_t>(byte);
    std::copy(kFrom128.begin(), kFrom128.end(), table.begin() + 128);
}

/// The name by which the C library knows the page.
std::string NameOf(int number) {
    if (number == 20866) return "KOI8-R";
    if (number == 21866) return "KOI8-U";
    if (number > 28590 && number < 28606) return "ISO-8859-" + std::to_string(number - 28590);
    return "CP" + std::to_string(number);
}

}  // namespace

bool SystemCodePageTable(int number, std::array<wchar_t, 256>& table) {
    if (number == 1252) {
        Fill1252(table);
        return true;
    }
    const iconv_t converter = iconv_open("UTF-16LE", NameOf(number).c_str());
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
