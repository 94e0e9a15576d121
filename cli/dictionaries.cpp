#include "cli/commands.h"
#include "cli/output.h"
#include "cli/session.h"
#include "dict/dictionary_names.h"

#include <algorithm>

namespace wordhawk {
namespace {

int Fail(const std::string& line) {
    ShowMessageLine(line);
    return kExitFailed;
}

/// Counts the words of files, and tells of those that cannot be read.
class WordCounter {
  public:
    std::size_t CountFile(const Path& file) {
        auto bytes = ReadWholeFile(file);
        if (bytes) return DictionaryFile(std::move(*bytes)).CountEntries();
        ShowMessageLine(MessageLine(bytes.error()));
        failed_ = true;
        return 0;
    }

    std::size_t CountFolder(const Path& folder) {
        std::size_t words = 0;
        for (const std::wstring& name : ListFiles(folder, L".dic"))
            words += CountFile(folder / PathFromText(name));
        return words;
    }

    bool Failed() const { return failed_; }

  private:
    bool failed_ = false;
};

bool Holds(const std::vector<std::wstring>& names, std::wstring_view name) {
    return std::any_of(names.begin(), names.end(),
                       [&](const std::wstring& other) { return EqualIgnoringCase(other, name); });
}

/// Puts the name on the list of dictionaries that are searched.
int Activate(Program& program, const std::string& argument) {
    const auto name = CustomDictionaryName(FromUtf8(argument));
    if (!name) return Fail(MessageLine(argument, ToUtf8(name.error().what)));
    if (!IsFile(program.dictionaries.CustomPath(*name))) {
        return Fail(MessageLine(argument, "there is no such custom dictionary"));
    }
    const auto activated =
        modRegs::ActivateCustomDictionary(program.state, program.settings, *name);
    if (!activated) return Fail(MessageLine(activated.error()));
    return kExitFine;
}

}  // namespace

int RunDictionaries(const GlobalOptions& global, const std::string& activate) {
    Session session(global);
    Program& program = session.program;
    if (!activate.empty()) {
        if (const int code = Activate(program, activate); code != kExitFine) return code;
    }
    Output out(stdout);
    WordCounter counter;
    const Path root = program.state.DataFolder / "Dictionarys";
    for (const std::wstring& folder : ListFolders(root)) {
        if (EqualIgnoringCase(folder, L"Custom")) continue;
        const std::size_t words = counter.CountFolder(root / PathFromText(folder));
        const bool in_use = folder == program.state.LanguageId;
        if (words == 0 && !in_use) continue;
        out << "main\t" << folder << '\t' << words << '\t' << (in_use ? "*\n" : "\n");
    }
    for (const std::wstring& name : ListFiles(program.state.CustomFolder(), L".dic")) {
        out << "custom\t" << name << '\t'
            << counter.CountFile(program.dictionaries.CustomPath(name)) << '\t'
            << (Holds(program.settings.CustomDictionaries, name) ? "*\n" : "\n");
    }
    out.Flush();
    return out.Failed() || counter.Failed() ? kExitFailed : kExitFine;
}

}  // namespace wordhawk
