#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// The RTF document with the text colour `red, green, blue` of its colour table made the reader's
/// own: dark mode shows a plain document in a colour that must not go into a file.
std::string RtfWithAutomaticColour(std::string_view rtf, int red, int green, int blue);

}  // namespace wordhawk
