#include "engine/suggest/letters.h"

#include <string_view>

namespace wordhawk::letters {
namespace {

/// Characters, each followed by the Latin letter that stands for it.
constexpr std::wstring_view kLatin =
    L"\u00e0a\u00e1a\u00e2a\u00e3a\u00e4a\u00e5a\u00e6a\u0101a\u0103a\u0105a"
    L"\u00e7c\u0107c\u0109c\u010bc\u010dc\u010fd\u0111d\u00f0d"
    L"\u00e8e\u00e9e\u00eae\u00ebe\u0113e\u0117e\u0119e\u011be\u011fg\u0121g\u0123g\u0125h\u0127h"
    L"\u00eci\u00edi\u00eei\u00efi\u012bi\u012fi\u0131i\u0137k\u013al\u013cl\u013el\u0142l"
    L"\u00f1n\u0144n\u0146n\u0148n\u00f2o\u00f3o\u00f4o\u00f5o\u00f6o\u00f8o\u014do\u0151o\u0153o"
    L"\u0155r\u0159r\u015bs\u015fs\u0161s\u0219s\u00dfs\u0163t\u0165t\u021bt\u00fet"
    L"\u00f9u\u00fau\u00fbu\u00fcu\u016bu\u016du\u016fu\u0171u\u0173u\u00fdy\u00ffy"
    L"\u017az\u017cz\u017ez";
constexpr std::wstring_view kGreek =
    L"\u03b1a\u03aca\u03b2b\u03b3g\u03b4d\u03b5e\u03ade\u03b6z\u03b7i\u03aei\u03b8q\u03b9i\u03afi"
    L"\u03cai\u0390i\u03bak\u03bbl\u03bcm\u03bdn\u03bex\u03bfo\u03cco\u03c0p\u03c1r\u03c3s\u03c2s"
    L"\u03c4t\u03c5y\u03cdy\u03cby\u03b0y\u03c6f\u03c7h\u03c8c\u03c9o\u03ceo";
constexpr std::wstring_view kCyrillic =
    L"\u0430a\u0431b\u0432v\u0433g\u0491g\u0434d\u0435e\u0451e\u0454e\u0436j\u0437z\u0438i\u0439i"
    L"\u0456i\u0457i\u043ak\u043bl\u043cm\u043dn\u043eo\u043fp\u0440r\u0441s\u0442t\u0443u\u045eu"
    L"\u0444f\u0445h\u0446c\u0447q\u0448w\u0449w\u044by\u044de\u044eu\u044fa";

Letter InTable(wchar_t c, std::wstring_view table) {
    for (std::size_t i = 0; i + 1 < table.size(); i += 2) {
        if (table[i] == c) return Of(static_cast<char>(table[i + 1]));
    }
    return kNone;
}

Letter OfCharacter(wchar_t c) {
    if (c >= L'a' && c <= L'z') return Of(static_cast<char>(c));
    if (c == L'\'' || c == L'\u2019' || c == L'\u02bc') return kApostrophe;
    if (c == L' ' || c == L'-') return kSeparator;
    for (const std::wstring_view table : {kLatin, kGreek, kCyrillic}) {
        if (const Letter letter = InTable(c, table)) return letter;
    }
    return kOther;
}

struct Key {
    int quarter = -1000;  ///< distance from the left edge in quarters of a key
    int row = -1000;
};

constexpr std::array<Key, 32> MakeKeys() {
    std::array<Key, 32> keys{};
    constexpr std::string_view kRows[] = {"qwertyuiop", "asdfghjkl", "zxcvbnm"};
    constexpr int kShift[] = {0, 1, 3};
    for (int row = 0; row < 3; ++row) {
        for (std::size_t i = 0; i < kRows[row].size(); ++i)
            keys[Of(kRows[row][i])] = {static_cast<int>(i) * 4 + kShift[row], row};
    }
    return keys;
}

}  // namespace

bool AreNeighbours(Letter a, Letter b) {
    static constexpr std::array<Key, 32> kKeys = MakeKeys();
    if (a == b || kKeys[a].row < 0 || kKeys[b].row < 0) return false;
    const int across = kKeys[a].quarter - kKeys[b].quarter;
    const int down = kKeys[a].row - kKeys[b].row;
    return across >= -4 && across <= 4 && down >= -1 && down <= 1;
}

std::array<Letter, 256> OfPage(const AnsiCodePage& page) {
    std::array<Letter, 256> letters{};
    for (int byte = 0; byte < 256; ++byte)
        letters[static_cast<std::size_t>(byte)] =
            OfCharacter(LowerChar(page.ToUnicode(static_cast<unsigned char>(byte))));
    return letters;
}

}  // namespace wordhawk::letters
