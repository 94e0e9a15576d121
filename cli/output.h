#pragma once

#include "platform/result.h"

#include <concepts>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace wordhawk {

/// Exit codes of every command.
inline constexpr int kExitFine = 0;
inline constexpr int kExitFound = 1;   ///< unknown words, or a word that was not there
inline constexpr int kExitFailed = 2;  ///< usage, input, dictionary or output failure

/// Text on its way to a stream, or to whoever takes it.
class Output {
  public:
    /// On a terminal, texts are shown with their control characters visible (see VisibleText).
    explicit Output(std::FILE* stream);
    /// Gives the text away in pieces, each cut behind something that was written at once; what was
    /// not flushed at the end is dropped.
    explicit Output(std::function<void(std::string_view)> take) : take_(std::move(take)) {}
    ~Output() {
        if (stream_ != nullptr) Flush();
    }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    Output& operator<<(std::string_view bytes) {
        buffer_.append(bytes);
        if (buffer_.size() >= kFlushAt) Flush();
        return *this;
    }
    Output& operator<<(char c) { return *this << std::string_view(&c, 1); }
    /// Text as it came from outside: words, names.
    Output& operator<<(std::wstring_view text);
    template <std::integral Number>
    Output& operator<<(Number number) {
        return *this << std::string_view(std::to_string(number));
    }

    void Flush();
    /// Whether the stream refused something.
    bool Failed() const { return failed_; }

  private:
    static constexpr std::size_t kFlushAt = std::size_t{1} << 16;

    std::FILE* stream_ = nullptr;
    std::function<void(std::string_view)> take_;
    bool shows_controls_ = false;
    std::string buffer_;
    bool failed_ = false;
};

/// "wordhawk-cli: text" as a line for stderr.
std::string MessageLine(std::string_view text);
/// "wordhawk-cli: subject: text" as a line for stderr.
std::string MessageLine(std::string_view subject, std::string_view text);
/// The same for an error of the core, about the file where it happened.
std::string MessageLine(const Error& error);

/// Writes a message line to stderr at once.
void ShowMessageLine(std::string_view line);

}  // namespace wordhawk
