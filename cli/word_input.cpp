#include "cli/word_input.h"

#include "cli/console.h"

namespace wordhawk {

bool InputLines::Next(std::string& line, const std::function<void()>& before_waiting) {
    constexpr std::size_t kReadBytes = std::size_t{64} << 10;
    std::size_t searched = at_;
    while (true) {
        const std::size_t line_end = buffer_.find('\n', searched);
        if (line_end != std::string::npos || at_end_) {
            if (line_end == std::string::npos && at_ == buffer_.size()) return false;
            line.assign(buffer_, at_, line_end == std::string::npos ? line_end : line_end - at_);
            at_ = line_end == std::string::npos ? buffer_.size() : line_end + 1;
            if (!line.empty() && line.back() == '\r') line.pop_back();
            return true;
        }
        buffer_.erase(0, at_);
        at_ = 0;
        searched = buffer_.size();
        before_waiting();
        buffer_.resize(searched + kReadBytes);
        const std::ptrdiff_t got = ReadStandardInput(buffer_.data() + searched, kReadBytes);
        buffer_.resize(searched + static_cast<std::size_t>(got > 0 ? got : 0));
        failed_ = got < 0;
        at_end_ = got <= 0;
    }
}

std::wstring TextOfBytes(std::string_view bytes, const AnsiCodePage& page) {
    return IsUtf8(bytes) ? FromUtf8(bytes) : page.Decode(bytes);
}

std::string ObjectionTo(std::wstring_view word, const AnsiCodePage& page) {
    if (word.empty()) return "an empty word cannot be added";
    for (const wchar_t c : word) {
        if (static_cast<std::uint32_t>(c) < 0x20 || c == L',') {
            return "a word with a comma or a control character cannot be added";
        }
        if (page.ToByteOrNone(LowerChar(c)) < 0) {
            return "the dictionaries of this language, in code page " +
                   std::to_string(page.Number()) + ", cannot hold the word";
        }
    }
    return {};
}

Result<void> ForEachWord(const WordOptions& options, const AnsiCodePage& page,
                         const std::function<void(std::wstring_view)>& sink) {
    const auto give = [&](std::string_view bytes) {
        const std::wstring text = TextOfBytes(bytes, page);
        const std::wstring_view word = Trim(text);
        if (!word.empty()) sink(word);
    };
    for (const std::string& word : options.words) give(word);
    if (!options.from_input) return {};
    InputLines lines;
    std::string line;
    bool first = true;
    while (lines.Next(line, [] {})) {
        const bool marked = first && line.starts_with("\xEF\xBB\xBF");
        give(std::string_view(line).substr(marked ? 3 : 0));
        first = false;
    }
    if (lines.Failed()) return tl::unexpected(Error{L"reading standard input failed", {}});
    return {};
}

}  // namespace wordhawk
