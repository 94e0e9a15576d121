#include "dict/word_lines.h"

#include "dict/lines.h"

namespace wordhawk {

std::vector<std::wstring> WordsOfLines(std::string_view bytes, const AnsiCodePage& page) {
    std::vector<std::wstring> words;
    ForEachLine(bytes, [&](std::string_view line) {
        const std::string_view word = line.substr(0, line.find(','));
        if (!word.empty()) words.push_back(page.Decode(word));
    });
    return words;
}

}  // namespace wordhawk
