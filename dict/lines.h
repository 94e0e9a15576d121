#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace wordhawk {

/// Calls `use(line)` for every line of `bytes`, without its end: CR LF or LF. A CR elsewhere is
/// part of its line. Text behind the last line end counts as a line unless it is empty.
template <class Use>
void ForEachLine(std::string_view bytes, Use&& use) {
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while (at != end) {
        const auto* feed =
            static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
        const char* stop = feed != nullptr ? feed : end;
        const char* const next = feed != nullptr ? feed + 1 : end;
        if (feed != nullptr && stop != at && stop[-1] == '\r') --stop;
        use(std::string_view(at, static_cast<std::size_t>(stop - at)));
        at = next;
    }
}

}  // namespace wordhawk
