#include "app/command_file.h"

#include "platform/text.h"

namespace wordhawk {

std::wstring CommandFileFrom(std::wstring_view command_line) {
    command_line = Trim(command_line);
    if (command_line.find(L' ') != command_line.npos &&
        command_line.find(L'"') != command_line.npos) {
        // A path in quotes ends at the second one; an unclosed quote leaves the whole line.
        const std::size_t closing = command_line.find(L'"', 1);
        if (closing != command_line.npos) command_line = command_line.substr(0, closing + 1);
    }
    std::wstring cleaned(command_line);
    std::erase_if(cleaned, [](wchar_t c) { return c == L'"' || c == L'\''; });
    return std::wstring(Trim(cleaned));
}

}  // namespace wordhawk
