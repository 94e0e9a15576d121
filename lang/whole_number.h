#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace wordhawk {

/// The whole decimal number that `text` is, blanks and a sign allowed; nothing for any other text
/// and for a number outside 32 bits. Tells ids and locale numbers from other texts.
std::optional<std::int32_t> WholeNumber(std::wstring_view text);

}  // namespace wordhawk
