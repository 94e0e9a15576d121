#include "ui/main_window/screen_colour.h"

namespace wordhawk {

std::string RtfWithAutomaticColour(std::string_view rtf, int red, int green, int blue) {
    std::string result(rtf);
    const std::size_t table = result.find("{\\colortbl");
    if (table == std::string::npos) return result;
    std::string entry = "\\red";
    entry.append(std::to_string(red)).append("\\green").append(std::to_string(green));
    entry.append("\\blue").append(std::to_string(blue)).append(";");
    const std::size_t found = result.find(entry, table);
    // An entry without a colour is the automatic one; the others keep their numbers.
    if (found != std::string::npos && found < result.find('}', table)) {
        result.erase(found, entry.size() - 1);
    }
    return result;
}

}  // namespace wordhawk
