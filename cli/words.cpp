#include "cli/commands.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/word_input.h"
#include "dict/custom_words.h"
#include "dict/dictionary_names.h"

#include <algorithm>

namespace wordhawk {
namespace {

int Fail(const std::string& line) {
    ShowMessageLine(line);
    return kExitFailed;
}

}  // namespace

int RunAdd(const GlobalOptions& global, const AddOptions& options) {
    Session session(global);
    DictionaryStore& store = session.program.dictionaries;
    std::vector<std::wstring> words;
    for (const std::string& argument : options.words) {
        const std::wstring text = TextOfBytes(argument, store.Page());
        const std::string objection = ObjectionTo(Trim(text), store.Page());
        if (!objection.empty()) return Fail(MessageLine(argument, objection));
        words.emplace_back(Trim(text));
    }
    AddTarget target = options.to_main ? AddTarget::Main : AddTarget::ActiveCustom;
    Path path;
    if (!options.custom.empty()) {
        const auto name = CustomDictionaryName(FromUtf8(options.custom));
        if (!name) return Fail(MessageLine(options.custom, ToUtf8(name.error().what)));
        target = AddTarget::ExplicitFile;
        path = store.CustomPath(*name);
    }
    Progress no_progress;
    const auto added = AddWordsToDictionary(store, words, target, path, no_progress);
    if (!added) return Fail(MessageLine(added.error()));
    return kExitFine;
}

int RunRemove(const GlobalOptions& global, const WordOptions& options) {
    Session session(global);
    DictionaryStore& store = session.program.dictionaries;
    Output out(stdout);
    int exit_code = kExitFine;
    for (const std::string& argument : options.words) {
        const std::wstring text = TextOfBytes(argument, store.Page());
        const std::wstring_view word = Trim(text);
        const Removal removal = RemoveWordFromDictionaries(store, word);
        for (const Error& failure : removal.failures) {
            ShowMessageLine(MessageLine(failure));
            exit_code = kExitFailed;
        }
        if (!removal.file.empty()) {
            store.ReloadFile(removal.file);
            out << word << '\t' << TextFromPath(removal.file.filename()) << '\n';
        } else if (removal.failures.empty()) {
            ShowMessageLine(MessageLine(argument, "is in no dictionary"));
            exit_code = std::max(exit_code, kExitFound);
        }
    }
    out.Flush();
    return out.Failed() ? kExitFailed : exit_code;
}

}  // namespace wordhawk
