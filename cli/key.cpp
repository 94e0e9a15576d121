#include "cli/commands.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/word_input.h"
#include "dict/phonetic_key.h"

namespace wordhawk {

int RunKey(const GlobalOptions& global, const WordOptions& options) {
    Session session(global);
    const AnsiCodePage& page = session.program.dictionaries.Page();
    Output out(stdout);
    const auto read = ForEachWord(options, page, [&](std::wstring_view word) {
        const std::wstring lower = Lower(word);
        out << word << '\t' << GetDictionaryFileName(lower, page) << '\t'
            << GetPhoneticKey(lower, page) << '\n';
    });
    out.Flush();
    if (!read) ShowMessageLine(MessageLine(read.error()));
    return read && !out.Failed() ? kExitFine : kExitFailed;
}

}  // namespace wordhawk
