#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// Whether a code point, shown raw, could move the cursor, hide or reorder text, or end a line: the
/// C0 and C1 controls, DEL, separators of lines and the marks that set writing directions.
bool IsHostileOnScreen(char32_t c);

/// UTF-8 with every such character, and every byte that is no UTF-8, in a visible form: \x1b,
/// \u202e. Text that holds none comes back as it is.
std::string VisibleText(std::string_view utf8);

}  // namespace wordhawk
