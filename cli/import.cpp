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

}  // namespace

int RunImport(const GlobalOptions& global, const std::string& file) {
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
    const auto added = ImportDictionary(program.dictionaries, program.flags, source, *name,
                                        no_progress, session.ui);
    if (!added) return Fail(MessageLine(added.error()));
    Output out(stdout);
    out << *added << '\n';
    out.Flush();
    return out.Failed() ? kExitFailed : kExitFine;
}

}  // namespace wordhawk
