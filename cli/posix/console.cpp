#include "cli/console.h"

#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace wordhawk {

std::vector<std::string> CommandLineArguments(int argc, char** argv) {
    return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

Path PathFromArgument(const std::string& argument) { return {argument}; }

std::FILE* OpenForReading(const Path& path) {
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    if (file != nullptr) std::setvbuf(file, nullptr, _IONBF, 0);
    return file;
}

bool IsTerminal(Stream stream) {
    const int descriptor = stream == Stream::Input    ? STDIN_FILENO
                           : stream == Stream::Output ? STDOUT_FILENO
                                                      : STDERR_FILENO;
    return isatty(descriptor) == 1;
}

std::ptrdiff_t ReadStandardInput(char* buffer, std::size_t size) {
    ssize_t got;
    do {
        got = read(STDIN_FILENO, buffer, size);
    } while (got < 0 && errno == EINTR);
    return got;
}

ConsoleMode::ConsoleMode() {
    // A file that passes the user's limit is an error to be told of, and not the end of us.
    std::signal(SIGXFSZ, SIG_IGN);
}
ConsoleMode::~ConsoleMode() = default;

}  // namespace wordhawk
