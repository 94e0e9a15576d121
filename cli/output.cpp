#include "cli/output.h"

#include "platform/files.h"
#include "platform/text.h"

namespace wordhawk {

Output& Output::operator<<(std::wstring_view text) {
    for (const wchar_t c : text) {
        if (static_cast<std::uint32_t>(c) >= 0x80) return *this << std::string_view(ToUtf8(text));
    }
    buffer_.append(text.begin(), text.end());
    return *this;
}

void Output::Flush() {
    if (stream_ == nullptr) return;
    if (!buffer_.empty() &&
        std::fwrite(buffer_.data(), 1, buffer_.size(), stream_) != buffer_.size()) {
        failed_ = true;
    }
    buffer_.clear();
    if (std::fflush(stream_) != 0) failed_ = true;
}

std::string MessageLine(std::string_view text) {
    std::string line = "wordhawk-cli: " + std::string(text);
    for (char& c : line) {
        if (static_cast<unsigned char>(c) < 0x20) c = ' ';  // one message, one line
    }
    return line + '\n';
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
