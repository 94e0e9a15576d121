#include "cli/commands.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/word_input.h"
#include "engine/suggest/suggester.h"

namespace wordhawk {

int RunSuggest(const GlobalOptions& global, const WordOptions& options) {
    Session session(global);
    Program& program = session.program;
    Suggester suggester(program.dictionaries, program.settings);
    Output out(stdout);
    const auto read =
        ForEachWord(options, program.dictionaries.Page(), [&](std::wstring_view word) {
            const Suggestions found = suggester.Find(word);
            if (found.list.empty()) out << word << "\t\t\t\n";
            for (std::size_t i = 0; i < found.list.size(); ++i) {
                const Suggestion& suggestion = found.list[i];
                out << word << '\t' << suggestion.word << '\t' << suggestion.score << '\t'
                    << (static_cast<int>(i) == found.best ? "*\n" : "\n");
            }
        });
    out.Flush();
    if (!read) {
        ShowMessageLine(MessageLine(read.error()));
        return kExitFailed;
    }
    if (!HasDictionaries(program)) {
        ShowMessageLine(NoDictionariesLine(program));
        return kExitFailed;
    }
    return FinishedWith(out.Failed() ? kExitFailed : kExitFine, program.dictionaries);
}

}  // namespace wordhawk
