#include "cli/progress_line.h"

#include "cli/console.h"

#include <cstdio>
#include <string>

namespace wordhawk {

using std::chrono::steady_clock;

ProgressLine::ProgressLine()
    : enabled_(IsTerminal(Stream::Error)), next_(steady_clock::now() + std::chrono::seconds(1)) {}

void ProgressLine::Show(std::string_view what, int percent) {
    if (!enabled_) return;
    const auto now = steady_clock::now();
    if (now < next_) return;
    next_ = now + std::chrono::milliseconds(200);
    std::string line = "\r\x1b[K" + std::string(what.substr(0, 60));
    if (percent >= 0) line += ": " + std::to_string(percent) + "%";
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
    shown_ = true;
}

void ProgressLine::Clear() {
    if (!shown_) return;
    std::fputs("\r\x1b[K", stderr);
    std::fflush(stderr);
    shown_ = false;
}

}  // namespace wordhawk
