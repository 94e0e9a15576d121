#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// `text` as a JSON string in quotes: valid UTF-8, control characters escaped.
std::string JsonString(std::string_view utf8);
std::string JsonString(std::wstring_view text);

}  // namespace wordhawk
