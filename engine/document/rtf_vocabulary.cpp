#include "engine/document/rtf_vocabulary.h"

#include <algorithm>
#include <array>

namespace wordhawk {
namespace {

// clang-format off
constexpr std::array<std::string_view, 43> kTextless = {
    "aftncn", "aftnsep", "aftnsepc", "atnauthor", "atnid", "author", "bkmkend", "bkmkstart",
    "colorschememapping", "colortbl", "datastore", "do", "falt", "filetbl", "fldinst", "fontemb",
    "fontfile", "ftncn", "ftnsep", "ftnsepc", "generator", "info", "latentstyles", "leveltext",
    "listoverridetable", "listtable", "listtext", "nonesttables", "nonshppict", "objdata",
    "operator", "panose", "pict", "pntext", "revtbl", "rxe", "shprslt", "sp", "stylesheet", "tc",
    "themedata", "txe", "xe"
};
// clang-format on

constexpr std::array<std::string_view, 10> kSeparate = {"footer",   "footerf", "footerl", "footerr",
                                                        "footnote", "header",  "headerf", "headerl",
                                                        "headerr",  "shptxt"};

static_assert(std::is_sorted(kTextless.begin(), kTextless.end()));
static_assert(std::is_sorted(kSeparate.begin(), kSeparate.end()));

struct Symbol {
    std::string_view word;
    wchar_t character;
};

constexpr std::array<Symbol, 22> kSymbols = {{
    {"bullet", 0x2022},    {"cell", L'\t'},    {"column", L'\n'},   {"emdash", 0x2014},
    {"emspace", 0x2003},   {"endash", 0x2013}, {"enspace", 0x2002}, {"ldblquote", 0x201C},
    {"line", L'\n'},       {"lquote", 0x2018}, {"ltrmark", 0x200E}, {"nestcell", L'\t'},
    {"nestrow", L'\n'},    {"page", L'\n'},    {"par", L'\n'},      {"qmspace", 0x2005},
    {"rdblquote", 0x201D}, {"row", L'\n'},     {"rquote", 0x2019},  {"rtlmark", 0x200F},
    {"sect", L'\n'},       {"tab", L'\t'},
}};

}  // namespace

bool IsTextlessDestination(std::string_view word) {
    return std::binary_search(kTextless.begin(), kTextless.end(), word);
}

bool IsSeparateDestination(std::string_view word) {
    return std::binary_search(kSeparate.begin(), kSeparate.end(), word);
}

wchar_t CharacterOfWord(std::string_view word) {
    const auto symbol = std::find_if(kSymbols.begin(), kSymbols.end(),
                                     [word](const Symbol& s) { return s.word == word; });
    return symbol == kSymbols.end() ? L'\0' : symbol->character;
}

int PageOfCharset(int charset, int document_page) {
    switch (charset) {
        case 0: return 1252;
        case 161: return 1253;
        case 162: return 1254;
        case 163: return 1258;
        case 177: return 1255;
        case 178: return 1256;
        case 186: return 1257;
        case 204: return 1251;
        case 222: return 874;
        case 238: return 1250;
        default: return document_page;
    }
}

}  // namespace wordhawk
