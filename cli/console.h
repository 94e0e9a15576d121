#pragma once

#include "platform/files.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// The arguments behind the program's name: UTF-8 on Windows, on Linux the bytes as they came.
std::vector<std::string> CommandLineArguments(int argc, char** argv);

/// The file that an argument names.
Path PathFromArgument(const std::string& argument);

/// Opens a file for reading its bytes; null when that fails. The stream has no buffer of its own.
std::FILE* OpenForReading(const Path& path);

enum class Stream { Input, Output, Error };

/// Whether a person sits at the stream.
bool IsTerminal(Stream stream);

/// Reads at most `size` bytes that are there now, waiting only when there are none. 0 at the end,
/// negative after an error. What is typed at a Windows console arrives as UTF-8.
std::ptrdiff_t ReadStandardInput(char* buffer, std::size_t size);

/// Bytes pass the standard streams unchanged, and a Windows console shows UTF-8 (and colours),
/// while the object lives.
class ConsoleMode {
  public:
    ConsoleMode();
    ~ConsoleMode();
    ConsoleMode(const ConsoleMode&) = delete;
    ConsoleMode& operator=(const ConsoleMode&) = delete;

  private:
    [[maybe_unused]] unsigned page_before_ = 0;  // of the Windows console
};

}  // namespace wordhawk
