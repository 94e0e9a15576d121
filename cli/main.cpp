#include "app/prepare_folders.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/side_by_side.h"

#include <cstdio>

namespace wordhawk {
namespace {

int Run(const Options& options) {
    if (const auto wrong = WrongOverride(options.global)) {
        ShowMessageLine(MessageLine(*wrong));
        return kExitFailed;
    }
    const bool needs_data = options.command != Command::BuildDictionary;
    if (needs_data && options.global.data_folder.empty() && ComputeDataFolder().empty()) {
        ShowMessageLine(
            MessageLine("this user has no home folder; name a data folder with --data"));
        return kExitFailed;
    }
    switch (options.command) {
        case Command::Check: return RunCheck(options.global, options.check);
        case Command::Suggest: return RunSuggest(options.global, options.words);
        case Command::Explain: return RunExplain(options.global, options.explain);
        case Command::Key: return RunKey(options.global, options.words);
        case Command::Add: return RunAdd(options.global, options.add);
        case Command::Remove: return RunRemove(options.global, options.words);
        case Command::Forbid: return RunForbid(options.global, options.forbid);
        case Command::Import: return RunImport(options.global, options.import);
        case Command::Dictionaries: return RunDictionaries(options.global, options.activate);
        case Command::BuildDictionary: return RunBuildDictionary(options.build);
        case Command::Pipe: return RunPipe(options.global);
    }
    return kExitFailed;
}

int Main(int argc, char** argv) {
    const ConsoleMode console;
    const std::vector<std::string> arguments = CommandLineArguments(argc, argv);
    const ParsedCommandLine parsed = IsIspellCommandLine(arguments)
                                         ? ParseIspellCommandLine(arguments)
                                         : ParseCommandLine(arguments);
    if (parsed.options) return Run(*parsed.options);
    Output out(parsed.exit_code == 0 ? stdout : stderr);
    out << parsed.text;
    out.Flush();
    return out.Failed() ? kExitFailed : parsed.exit_code;
}

}  // namespace
}  // namespace wordhawk

int main(int argc, char** argv) {
    try {
        return wordhawk::Main(argc, argv);
    } catch (const std::exception& error) {  // out of memory, above all
        wordhawk::ShowMessageLine(wordhawk::MessageLine(wordhawk::DescribeException(error)));
        return wordhawk::kExitFailed;
    }
}
