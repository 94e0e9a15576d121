#include "app/delimiter_flags.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/output.h"
#include "dict/build.h"

namespace wordhawk {

int RunBuildDictionary(const BuildOptionsOfCommand& options) {
    BuildOptions build;
    build.page = &AnsiCodePage::Get(options.code_page);
    // The apostrophe is no delimiter of its own, but its typographic sisters are: where a text has
    // those, "isn't" is checked as "isn".
    if (options.pieces)
        build.piece_delimiters = BuildDelimiters(DelimiterFlagStore(), *build.page) + L"'";
    for (const std::string& list : options.excluded)
        build.excluded_lists.push_back(PathFromArgument(list));
    std::vector<Path> word_lists;
    for (const std::string& list : options.word_lists) word_lists.push_back(PathFromArgument(list));

    const auto report = BuildDictionary(word_lists, PathFromArgument(options.output), build);
    if (!report) {
        ShowMessageLine(MessageLine(report.error()));
        return kExitFailed;
    }
    Output out(stdout);
    out << report->words << " words in " << report->files << " files, " << report->skipped
        << " left out\n";
    out.Flush();
    return out.Failed() ? kExitFailed : kExitFine;
}

}  // namespace wordhawk
