#include "lang/modRegionLocales.h"

#include <algorithm>
#include <initializer_list>

namespace wordhawk::modRegionLocales {
namespace {

struct Language {
    std::wstring_view name;
    std::initializer_list<int> locales;
};

// Not every variant of a language is listed, and Latvian goes by "Latin": installed language files
// and help topics are found under these names, so they stay. English stands for all other numbers.
constexpr Language kLanguages[] = {
    {L"Arabic", {1025, 3073, 11265, 15361, 16385}},
    {L"Czech", {1029}},
    {L"Danish", {1030}},
    {L"German", {1031, 2055, 3079, 4103, 5127}},
    {L"Greek", {1032}},
    {L"English", {1033, 2057, 3081, 4105, 5129, 6153, 7177, 8201, 9225}},
    {L"Spanish", {1034,  2058,  3082,  4106,  5130,  6154,  7178,  8202,  9226,  10250,
                  11274, 12298, 13322, 14346, 15370, 16394, 17418, 18442, 19466, 20490}},
    {L"Finnish", {1035}},
    {L"French", {1036, 2060, 3084, 4108, 5132}},
    {L"Hungarian", {1038}},
    {L"Italian", {1040, 2064}},
    {L"Japanese", {1041}},
    {L"Korean", {1042, 2066}},
    {L"Dutch", {1043, 2067}},
    {L"Norwegian", {1044, 2068}},
    {L"Polish", {1045}},
    {L"Portuguese", {1046, 2070}},
    {L"Romanian", {1048}},
    {L"Russian", {1049}},
    {L"Slovak", {1051}},
    {L"Turkish", {1055}},
    {L"Indonesian", {1057}},
    {L"Ukrainian", {1058}},
    {L"Latin", {1062}},
};

}  // namespace

std::wstring_view LanguageName(int locale, Want want) {
    if (want == Want::FilePrefix) return L"lang";
    for (const Language& language : kLanguages) {
        if (std::find(language.locales.begin(), language.locales.end(), locale) !=
            language.locales.end()) {
            return language.name;
        }
    }
    return L"English";
}

}  // namespace wordhawk::modRegionLocales
