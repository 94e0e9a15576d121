#include "platform/locale_ids.h"

#include "platform/locale_table.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace wordhawk {
namespace {

constexpr int kEnglishUnitedStates = 1033;

/// "pl_PL" of "pl_PL.UTF-8", "sr_RS@latin" of "sr_RS.UTF-8@latin".
std::string WithoutCharset(std::string_view name) {
    const std::size_t dot = name.find('.');
    const std::size_t at = name.find('@');
    std::string result(name.substr(0, std::min(dot, at)));
    if (at != std::string_view::npos) result += name.substr(at);
    return result;
}

/// Names by which older systems knew a language.
std::string_view CurrentLanguage(std::string_view language) {
    if (language == "no") return "nb";
    if (language == "iw") return "he";
    if (language == "in") return "id";
    if (language == "tl") return "fil";
    return language;
}

int NumberOfName(std::string name) {
    const std::size_t end = name.find_first_of("_@");
    const std::string language(CurrentLanguage(std::string_view(name).substr(0, end)));
    if (end != std::string::npos) name = language + name.substr(end);
    const std::string country = name.substr(0, name.find('@'));

    for (const std::string_view wanted : {std::string_view(name), std::string_view(country)}) {
        for (const LocaleRow& row : kLocales) {
            if (row.name == wanted) return row.number;
        }
    }
    const std::string beginning = language + "_";
    for (const LocaleRow& row : kLocales) {
        if (row.name.starts_with(beginning)) return row.number;
    }
    return kEnglishUnitedStates;
}

}  // namespace

int SystemDefaultLocale() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* value = std::getenv(variable);
        if (value && *value) return NumberOfName(WithoutCharset(value));
    }
    return kEnglishUnitedStates;
}

int SystemAnsiPage(int locale) { return AnsiPageOfLocale(locale); }

}  // namespace wordhawk
