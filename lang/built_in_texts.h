#pragma once

#include <string_view>

namespace wordhawk {

/// The built-in English text of an id (text_ids.h has their names), empty when there is none. A
/// language file can replace each of them.
std::wstring_view BuiltInText(int id);

}  // namespace wordhawk
