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
    while (!out.Failed() && lines.Next(line, [&out] { out.Flush(); })) pipe.HandleLine(line);
    out.Flush();
    return out.Failed() || lines.Failed() ? kExitFailed : kExitFine;
}

}  // namespace wordhawk
