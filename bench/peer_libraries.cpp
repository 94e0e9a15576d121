// Drives the peers' libraries over a text as their list commands would, without what the commands
// add: every run of letters and inner apostrophes is one question. Counts the unknown words.
//
//   peer_libraries hunspell|nuspell AFF DIC < TEXT

#include <hunspell/hunspell.hxx>
#include <nuspell/dictionary.hxx>

#include <cstdio>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

namespace {

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool IsInnerApostrophe(const std::string& text, std::size_t i) {
    return text[i] == '\'' && i + 1 < text.size() && IsLetter(text[i + 1]);
}

std::size_t CountUnknown(const std::string& text,
                         const std::function<bool(const std::string&)>& knows) {
    std::size_t unknown = 0;
    std::string word;
    for (std::size_t i = 0; i < text.size();) {
        if (!IsLetter(text[i])) {
            ++i;
            continue;
        }
        const std::size_t start = i;
        while (i < text.size() && (IsLetter(text[i]) || IsInnerApostrophe(text, i))) ++i;
        word.assign(text, start, i - start);
        unknown += !knows(word);
    }
    return unknown;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: peer_libraries hunspell|nuspell AFF DIC < TEXT\n", stderr);
        return 2;
    }
    std::ios::sync_with_stdio(false);
    const std::string text((std::istreambuf_iterator<char>(std::cin)), {});
    if (std::string_view(argv[1]) == "hunspell") {
        Hunspell checker(argv[2], argv[3]);
        std::printf("%zu\n", CountUnknown(text, [&](const std::string& word) {
                        return checker.spell(word);
                    }));
    } else {
        nuspell::Dictionary checker;
        checker.load_aff_dic(argv[2]);
        std::printf("%zu\n", CountUnknown(text, [&](const std::string& word) {
                        return checker.spell(word);
                    }));
    }
}
