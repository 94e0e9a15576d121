#include "app/command_file.h"

#include "platform/files.h"
#include "platform/text.h"

#include <system_error>

namespace wordhawk {

std::wstring CommandFileFrom(std::wstring_view command_line) {
    command_line = Trim(command_line);
    if (command_line.find(L' ') != command_line.npos &&
        command_line.find(L'"') != command_line.npos) {
        // A path in quotes ends at the second one; an unclosed quote leaves the whole line.
        const std::size_t closing = command_line.find(L'"', 1);
        if (closing != command_line.npos) command_line = command_line.substr(0, closing + 1);
    }
    std::wstring_view written = Trim(command_line);
    if (written.size() > 1 && written.front() == L'"' && written.back() == L'"') {
        written = written.substr(1, written.size() - 2);
    }
    // An apostrophe may belong to the name, and another file have the name without it.
    const bool has_apostrophe = written.find(L'\'') != written.npos;
    if (has_apostrophe && IsFile(PathFromText(written))) return std::wstring(written);
    std::wstring cleaned(command_line);
    std::erase_if(cleaned, [](wchar_t c) { return c == L'"' || c == L'\''; });
    return std::wstring(Trim(cleaned));
}

std::wstring AbsoluteName(std::wstring_view name) {
    if (name.empty()) return {};
    std::error_code error;
    const Path absolute = std::filesystem::absolute(PathFromText(name), error);
    return error ? std::wstring(name) : TextFromPath(absolute);
}

}  // namespace wordhawk
