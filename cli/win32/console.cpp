#include "cli/console.h"

#include "platform/text.h"
#include "platform/win32/win.h"

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <algorithm>
#include <array>

namespace wordhawk {
namespace {

HANDLE HandleOf(Stream stream) {
    return GetStdHandle(stream == Stream::Input    ? STD_INPUT_HANDLE
                        : stream == Stream::Output ? STD_OUTPUT_HANDLE
                                                   : STD_ERROR_HANDLE);
}

/// What was typed, as UTF-8. A byte read from the console in its UTF-8 page would lose every
/// character beyond ASCII, so it is read as UTF-16; what does not fit the buffer waits.
std::ptrdiff_t ReadConsoleInput(char* buffer, std::size_t size) {
    static std::string waiting;
    if (waiting.empty()) {
        std::array<wchar_t, 2048> typed;
        DWORD got = 0;
        if (!ReadConsoleW(HandleOf(Stream::Input), typed.data(), static_cast<DWORD>(typed.size()),
                          &got, nullptr)) {
            return -1;
        }
        if (got == 0 || typed[0] == 26) return 0;  // Ctrl+Z
        waiting = ToUtf8({typed.data(), got});
    }
    const std::size_t count = std::min(size, waiting.size());
    std::copy_n(waiting.begin(), count, buffer);
    waiting.erase(0, count);
    return static_cast<std::ptrdiff_t>(count);
}

}  // namespace

std::vector<std::string> CommandLineArguments(int, char**) {
    // The wide line, cut without wildcards: the run-time library's arguments are in the ANSI page.
    std::vector<std::string> arguments;
    int count = 0;
    LPWSTR* const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    if (wide == nullptr) return arguments;
    for (int i = 1; i < count; ++i) arguments.push_back(ToUtf8(wide[i]));
    LocalFree(wide);
    return arguments;
}

Path PathFromArgument(const std::string& argument) { return PathFromText(FromUtf8(argument)); }

std::FILE* OpenForReading(const Path& path) {
    std::FILE* const file = _wfopen(path.c_str(), L"rb");
    if (file != nullptr) std::setvbuf(file, nullptr, _IONBF, 0);
    return file;
}

bool IsTerminal(Stream stream) {
    DWORD mode = 0;
    return GetConsoleMode(HandleOf(stream), &mode) != 0;
}

std::ptrdiff_t ReadStandardInput(char* buffer, std::size_t size) {
    if (IsTerminal(Stream::Input)) return ReadConsoleInput(buffer, size);
    DWORD got = 0;
    if (ReadFile(HandleOf(Stream::Input), buffer,
                 static_cast<DWORD>(std::min<std::size_t>(size, 1u << 30)), &got, nullptr)) {
        return static_cast<std::ptrdiff_t>(got);
    }
    return GetLastError() == ERROR_BROKEN_PIPE ? 0 : -1;
}

ConsoleMode::ConsoleMode() {
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    if (!IsTerminal(Stream::Output) && !IsTerminal(Stream::Error)) return;
    page_before_ = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    DWORD mode = 0;
    const HANDLE output = HandleOf(Stream::Output);
    if (GetConsoleMode(output, &mode)) {
        SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }
}

ConsoleMode::~ConsoleMode() {
    if (page_before_ != 0) SetConsoleOutputCP(page_before_);
}

}  // namespace wordhawk
