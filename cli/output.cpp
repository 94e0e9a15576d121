#include "cli/output.h"

#include "cli/console.h"
#include "cli/visible_text.h"
#include "platform/files.h"
#include "platform/text.h"

#include <cerrno>
#include <system_error>

namespace wordhawk {

Output::Output(std::FILE* stream)
    : stream_(stream), shows_controls_(stream == stdout && IsTerminal(Stream::Output)) {}

Output& Output::operator<<(std::wstring_view text) {
    if (shows_controls_) return *this << std::string_view(VisibleText(ToUtf8(text)));
    for (const wchar_t c : text) {
        if (static_cast<std::uint32_t>(c) >= 0x80) return *this << std::string_view(ToUtf8(text));
    }
    buffer_.append(text.begin(), text.end());
    return *this;
}

void Output::Flush() {
    if (take_) {
        if (!buffer_.empty()) take_(buffer_);
        buffer_.clear();
        return;
    }
    if (stream_ == nullptr) return;
    const bool written = (buffer_.empty() || std::fwrite(buffer_.data(), 1, buffer_.size(),
                                                         stream_) == buffer_.size()) &&
                         std::fflush(stream_) == 0;
    buffer_.clear();
    if (written || std::exchange(failed_, true)) return;
    // A reader who has seen enough and went away needs no telling.
    if (errno != EPIPE)
        ShowMessageLine(MessageLine("the output", std::generic_category().message(errno)));
}

std::string MessageLine(std::string_view text) {
    std::string line(text);
    for (char& c : line) {
        if (c == '\n' || c == '\r' || c == '\t') c = ' ';  // one message, one line
    }
    return "wordhawk-cli: " + VisibleText(line) + '\n';
}

std::string MessageLine(std::string_view subject, std::string_view text) {
    return MessageLine(std::string(subject) + ": " + std::string(text));
}

std::string MessageLine(const Error& error) {
    const std::string what = ToUtf8(error.what);
    return error.where.empty() ? MessageLine(what) : MessageLine(PathForMessage(error.where), what);
}

void ShowMessageLine(std::string_view line) {
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
}

}  // namespace wordhawk
