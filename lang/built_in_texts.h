#pragma once

#include <string_view>

namespace wordhawk {

/// The built-in English text of an id, empty when there is none. Ids 101 to 234 can be replaced by
/// language files; ids from 1001 up are texts that language files do not carry.
std::wstring_view BuiltInText(int id);

}  // namespace wordhawk
