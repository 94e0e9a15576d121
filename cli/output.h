#pragma once

#include "platform/result.h"

#include <concepts>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>

namespace wordhawk {

/// Exit codes of every command.
inline constexpr int kExitFine = 0;
inline constexpr int kExitFound = 1;   ///< unknown words, or a word that was not there
inline constexpr int kExitFailed = 2;  ///< usage, input, dictionary or output failure

/// Text on its way to a stream, or collected when there is none.
class Output {
  public:
    explicit Output(std::FILE* stream) : stream_(stream) {}
    ~Output() { Flush(); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    Output& operator<<(std::string_view text) {
        buffer_.append(text);
        if (buffer_.size() >= kFlushAt && stream_ != nullptr) Flush();
        return *this;
    }
    Output& operator<<(char c) { return *this << std::string_view(&c, 1); }
    Output& operator<<(std::wstring_view text);
    template <std::integral Number>
    Output& operator<<(Number number) {
        return *this << std::string_view(std::to_string(number));
    }

    void Flush();
    /// Whether the stream refused something.
    bool Failed() const { return failed_; }
    /// What was collected without a stream; nothing is left behind.
    std::string Take() { return std::exchange(buffer_, {}); }

  private:
    static constexpr std::size_t kFlushAt = std::size_t{1} << 16;

    std::FILE* stream_;
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
