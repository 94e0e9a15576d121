#include "cli/commands.h"
#include "cli/output.h"
#include "cli/pipe_session.h"
#include "cli/session.h"
#include "cli/word_input.h"

namespace wordhawk {

int RunPipe(const GlobalOptions& global) {
    Session session(global);
    if (!HasDictionaries(session.program)) {
        ShowMessageLine(NoDictionariesLine(session.program));
        return kExitFailed;
    }
    Output out(stdout);
    out << kIspellBanner << '\n';
    PipeSession pipe(session.program, out);
    InputLines lines;
    std::string line;
    const DictionaryStore& store = session.program.dictionaries;
    bool told = false;
    while (!out.Failed() && lines.Next(line, [&out] { out.Flush(); })) {
        pipe.HandleLine(line);
        // At once, and once: the conversation may go on for hours.
        if (!told && !store.Unreadable().empty()) {
            ShowMessageLine(UnreadableLines(store));
            told = true;
        }
    }
    out.Flush();
    const bool failed = out.Failed() || lines.Failed() || pipe.SaveFailed() || told;
    return failed ? kExitFailed : kExitFine;
}

}  // namespace wordhawk
