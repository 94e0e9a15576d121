#pragma once

#include <string_view>

namespace wordhawk::modRegionLocales {

enum class Want { EnglishName, FilePrefix };

/// The English name of a locale number's language ("English" when it is not listed), or the fixed
/// prefix "lang" of language file names.
std::wstring_view LanguageName(int locale, Want want);

}  // namespace wordhawk::modRegionLocales
