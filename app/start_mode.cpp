#include "app/start_mode.h"

#include "platform/text.h"

#include <algorithm>

namespace wordhawk {
namespace {

std::wstring_view TakeArgument(std::wstring_view& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(L" \t"), rest.size()));
    const std::wstring_view argument = rest.substr(0, rest.find_first_of(L" \t"));
    rest.remove_prefix(argument.size());
    return argument;
}

bool Is(std::wstring_view argument, std::wstring_view name) {
    return argument.size() > 1 && (argument[0] == L'/' || argument[0] == L'-') &&
           EqualIgnoringCase(argument.substr(1), name);
}

}  // namespace

StartRequest StartRequestFrom(std::wstring_view command_line) {
    StartRequest request;
    std::wstring_view rest = command_line;
    const std::wstring_view first = TakeArgument(rest);
    if (Is(first, L"Automation") || Is(first, L"Embedding")) {
        request.mode = StartMode::Automation;
    } else if (Is(first, L"RegServer")) {
        request.mode = StartMode::Register;
    } else if (Is(first, L"UnregServer")) {
        request.mode = StartMode::Unregister;
    } else {
        return request;
    }
    while (!rest.empty()) {
        const std::wstring_view argument = TakeArgument(rest);
        if (Is(argument, L"AllUsers")) request.whom = RegisterFor::Machine;
        if (Is(argument, L"Quiet")) request.quiet = true;
    }
    return request;
}

}  // namespace wordhawk
