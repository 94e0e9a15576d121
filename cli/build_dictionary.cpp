#include "app/delimiter_flags.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/output.h"
#include "dict/build.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace wordhawk {
namespace {

std::vector<Path> Paths(const std::vector<std::string>& arguments) {
    std::vector<Path> paths;
    std::ranges::transform(arguments, std::back_inserter(paths), PathFromArgument);
    return paths;
}

/// The usual delimiters cut always, but for the letters among them, which with the setting
/// LettersStay cut nothing; nor does the apostrophe, whose typographic sister is a delimiter where
/// StraightApostrophe is off.
void SetCuts(CollectionRules& rules) {
    const std::wstring delimiters = BuildDelimiters(DelimiterFlagStore(), *rules.page);
    rules.cuts = WithoutLetters(delimiters);
    rules.letter_cuts = L"'";
    for (const wchar_t c : delimiters) {
        if (rules.cuts.find(c) == std::wstring::npos) rules.letter_cuts += c;
    }
}

}  // namespace

int RunBuildDictionary(const BuildOptionsOfCommand& options) {
    BuildOptions build;
    build.page = &AnsiCodePage::Get(options.code_page);
    if (options.pieces) SetCuts(build);
    build.any_short_names = options.any_short_names;
    const std::vector<Path> word_lists = Paths(options.word_lists);
    build.hunspell_dictionaries = Paths(options.hunspell_dictionaries);
    build.excluded_lists = Paths(options.excluded);
    if (options.shipped) build.origin = PackOrigin::Shipped;
    build.piece_lists = Paths(options.piece_lists);
    if (word_lists.empty() && build.hunspell_dictionaries.empty()) {
        ShowMessageLine(MessageLine(
            "nothing to build from: name a word list, or a dictionary with --hunspell"));
        return kExitFailed;
    }
    for (const auto& [file, list] : {std::pair(&options.in_use, &build.in_use),
                                     std::pair(&options.names_in_use, &build.names_in_use),
                                     std::pair(&options.parts_in_use, &build.parts_in_use)}) {
        if (file->empty()) continue;
        Result<UsageList> read = UsageList::Read(PathFromArgument(*file));
        if (!read) {
            ShowMessageLine(MessageLine(read.error()));
            return kExitFailed;
        }
        *list = std::move(*read);
    }

    const auto report = BuildDictionary(word_lists, PathFromArgument(options.output), build);
    if (!report) {
        ShowMessageLine(MessageLine(report.error()));
        return kExitFailed;
    }
    for (const std::string& name : report->not_expressed)
        ShowMessageLine(MessageLine("words that " + name + " makes are missing"));
    Output out(stdout);
    out << report->words << " words in " << report->files << " files, " << report->skipped
        << " left out\n";
    out.Flush();
    return out.Failed() ? kExitFailed : kExitFine;
}

}  // namespace wordhawk
