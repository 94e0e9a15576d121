#include "dict/import.h"

#include "cli/commands.h"
#include "cli/console.h"
#include "cli/output.h"
#include "cli/session.h"
#include "dict/dictionary_names.h"

namespace wordhawk {
namespace {

int Fail(const std::string& line) {
    ShowMessageLine(line);
    return kExitFailed;
}

/// "2 known already, 1 too short": why lines were left out; empty when none was.
std::string LeftOut(const ImportReport& report, const AnsiCodePage& page) {
    std::string why;
    const auto add = [&why](int count, const std::string& reason) {
        if (count > 0) why += (why.empty() ? "" : ", ") + std::to_string(count) + ' ' + reason;
    };
    add(report.known, "known already");
    add(report.too_short, "too short");
    add(report.unfit,
        "that a dictionary in code page " + std::to_string(page.Number()) + " cannot hold");
    return why;
}

}  // namespace

int RunImport(const GlobalOptions& global, const ImportOptions& options) {
    const std::string& file = options.file;
    Session session(global);
    Program& program = session.program;
    const Path source = PathFromArgument(file);
    if (const auto readable = ReadWholeFile(source, Accepted::Streams); !readable)
        return Fail(MessageLine(file, ToUtf8(readable.error().what)));
    const auto name = CustomDictionaryName(TextFromPath(source.filename()));
    if (!name) return Fail(MessageLine(file, ToUtf8(name.error().what)));
    const Path target = program.dictionaries.CustomPath(*name);
    for (const std::wstring& taken : ListFiles(program.state.CustomFolder(), L".dic")) {
        if (EqualIgnoringCase(taken, *name)) {
            return Fail(
                MessageLine(PathForMessage(target),
                            "a custom dictionary of this name exists; remove or rename it first"));
        }
    }
    Progress no_progress;
    const auto report =
        ImportWordList(program.dictionaries, program.flags, source, *name, no_progress, session.ui);
    if (!report) return Fail(MessageLine(report.error()));
    Output out(stdout);
    out << report->added << '\n';
    out.Flush();
    if (!options.quiet) {
        const std::string why = LeftOut(*report, program.dictionaries.Page());
        if (!why.empty()) ShowMessageLine(MessageLine(file, "left out: " + why));
        if (report->added > 0) TellWhenNotSearched(program, global, *name);
    }
    return out.Failed() ? kExitFailed : kExitFine;
}

}  // namespace wordhawk
