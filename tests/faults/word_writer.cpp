// A second copy of the program for the fault tests: changes the custom dictionary of a data folder.
//   word_writer FOLDER PREFIX COUNT   adds COUNT words that begin with PREFIX, one by one
//   word_writer FOLDER PREFIX 0       adds and removes words until it is killed

#include "dict/custom_words.h"

#include <cstdlib>
#include <iostream>

namespace {

using namespace wordhawk;

std::wstring WordOf(const std::wstring& prefix, int number) {
    std::wstring word = prefix;
    for (int i = 0; i < 4; ++i, number /= 10) word += static_cast<wchar_t>(L'a' + number % 10);
    return word;
}

int Run(const Path& folder, const std::wstring& prefix, int count) {
    ProgramState state;
    state.DataFolder = folder;
    Settings settings;
    DictionaryStore store(state, settings);
    Path path;
    for (int i = 0; count == 0 || i < count; ++i) {
        const std::wstring word = WordOf(prefix, i % 10'000);
        Result<void> done = AddWordToDictionary(store, word, AddTarget::ActiveCustom, path);
        if (done && count == 0) {
            const Result<bool> removed = RemoveWordFromCustomDictionary(store, word, {});
            if (!removed) done = tl::unexpected(removed.error());
        }
        if (!done) {
            std::cerr << PathForMessage(done.error().where) << ": " << ToUtf8(done.error().what)
                      << "\n";
            return 1;
        }
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) return 2;
    return Run(PathFromText(FromUtf8(argv[1])), FromUtf8(argv[2]), std::atoi(argv[3]));
}
