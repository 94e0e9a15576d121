#include "app/apostrophes.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/word_input.h"
#include "dict/custom_words.h"
#include "dict/dictionary_names.h"
#include "dict/entry_line.h"

#include <algorithm>

namespace wordhawk {
namespace {

int Fail(const std::string& line) {
    ShowMessageLine(line);
    return kExitFailed;
}

/// Words that their files hold already, and the others.
struct AddedWords {
    std::vector<std::wstring> added;
    std::vector<std::wstring> there;
};

AddedWords SortOut(DictionaryStore& store, const std::vector<std::wstring>& words, AddTarget target,
                   Path path) {
    AddedWords result;
    for (const std::wstring& word : words) {
        const std::string bytes =
            ReadWholeFile(AdditionFile(store, word, target, path)).value_or(std::string());
        const bool there =
            dictionary_edit::HasEntryBelowFirstLine(bytes, EntryLine(word, store.Page()));
        (there ? result.there : result.added).push_back(word);
    }
    return result;
}

/// "hello, hawk", or how many there are when they are many.
std::string Listed(const std::vector<std::wstring>& words) {
    constexpr std::size_t kMostNamed = 5;
    if (words.size() > kMostNamed) return std::to_string(words.size()) + " words";
    std::string text;
    for (const std::wstring& word : words) text += (text.empty() ? "" : ", ") + ToUtf8(word);
    return text;
}

/// As a check looks it up.
std::wstring InDictionaryForm(const Program& program, std::wstring_view word) {
    std::wstring form(word);
    if (program.settings.StraightApostrophe == 0) return form;
    return WithStraightApostrophes(std::move(form));
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
        words.push_back(InDictionaryForm(session.program, Trim(text)));
    }
    AddTarget target = options.to_main ? AddTarget::Main : AddTarget::ActiveCustom;
    Path path;
    if (!options.custom.empty()) {
        const auto name = CustomDictionaryName(FromUtf8(options.custom));
        if (!name) return Fail(MessageLine(options.custom, ToUtf8(name.error().what)));
        target = AddTarget::ExplicitFile;
        path = store.CustomPath(*name);
    }
    const AddedWords words_of_file = SortOut(store, words, target, path);
    Progress no_progress;
    const auto added = AddWordsToDictionary(store, words, target, path, no_progress);
    if (!added) return Fail(MessageLine(added.error()));
    if (options.quiet) return kExitFine;
    if (target == AddTarget::ActiveCustom) path = store.ActiveCustomPath();
    const std::wstring name = TextFromPath(path.filename());
    const std::string where = target == AddTarget::Main
                                  ? "main dictionary " + ToUtf8(session.program.state.LanguageId)
                                  : ToUtf8(name);
    if (!words_of_file.added.empty())
        ShowMessageLine(MessageLine(where, "added " + Listed(words_of_file.added)));
    if (!words_of_file.there.empty())
        ShowMessageLine(MessageLine(where, "holds " + Listed(words_of_file.there) + " already"));
    if (target != AddTarget::Main) TellWhenNotSearched(session.program, global, name);
    return kExitFine;
}

int RunRemove(const GlobalOptions& global, const WordOptions& options) {
    Session session(global);
    DictionaryStore& store = session.program.dictionaries;
    Output out(stdout);
    int exit_code = kExitFine;
    for (const std::string& argument : options.words) {
        const std::wstring text = TextOfBytes(argument, store.Page());
        const std::wstring word = InDictionaryForm(session.program, Trim(text));
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
