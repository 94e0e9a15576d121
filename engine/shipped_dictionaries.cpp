#include "engine/shipped_dictionaries.h"

namespace wordhawk {

int ShippedPackOf(int locale) {
    if (locale <= 0 || locale > 0xFFFF) return 0;
    // The low ten bits of a locale number name the language, the rest its country.
    switch (locale & 0x3FF) {
        case 0x06: return 1030;  // Danish
        case 0x07: return 1031;  // German
        case 0x09:               // English; the Philippines spell as the United States do
            return locale == 1033 || locale == 13321 ? 1033 : 2057;
        case 0x0A: return 1034;                          // Spanish
        case 0x0C: return 1036;                          // French
        case 0x10: return 1040;                          // Italian
        case 0x13: return 1043;                          // Dutch
        case 0x15: return 1045;                          // Polish
        case 0x16: return locale == 1046 ? 1046 : 2070;  // Portuguese
        case 0x1D: return 1053;                          // Swedish
        default: return 0;
    }
}

}  // namespace wordhawk
