#include "cli/check_queue.h"
#include "cli/check_summary.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/session.h"

#include <algorithm>
#include <cstdlib>
#include <thread>

namespace wordhawk {
namespace {

/// Checks on several threads; what is printed comes out in the order of the texts.
void CheckSideBySide(const Program& program, const CheckOptions& options, const WordSet& ignored,
                     Colour colour, CheckSummary& summary) {
    // More threads than the machine can run would only hold more dictionaries in memory.
    const std::size_t useful = std::max(2 * std::thread::hardware_concurrency(), 4u);
    SideBySide plan;
    plan.threads = std::min(static_cast<std::size_t>(options.jobs), useful);
    CheckQueue queue(program, options, ignored, colour, plan.threads);
    ProgressLine progress;
    plan.next = [&] { return queue.Next(); };
    plan.write = [&](std::string_view lines) {
        progress.Clear();
        summary.Write(lines);
    };
    plan.finished = [&](const SideBySide::Result& result) {
        if (!result.error_line.empty()) progress.Clear();
        summary.Add(result);
    };
    plan.waiting = [&] {
        const CheckQueue::Doing doing = queue.Now();
        progress.Show(doing.name, doing.percent);
    };
    plan.Run();
}

Colour ChooseColour() {
    const char* const refused = std::getenv("NO_COLOR");
    const bool wanted = refused == nullptr || *refused == '\0';
    return wanted && IsTerminal(Stream::Output) ? Colour::On : Colour::Off;
}

}  // namespace

int RunCheck(const GlobalOptions& global, const CheckOptions& given) {
    CheckOptions options = given;
    if (options.files.empty()) options.files.emplace_back("-");
    Session session(global);
    Program& program = session.program;
    if (!HasDictionaries(program)) {
        ShowMessageLine(NoDictionariesLine(program));
        return kExitFailed;
    }
    const auto ignored = ReadWordLists(options.ignored_lists, *program.state.CodePage);
    if (!ignored) {
        ShowMessageLine(MessageLine(ignored.error()));
        return kExitFailed;
    }
    Output out(stdout);
    CheckSummary summary(out, options);
    const Colour colour = ChooseColour();
    if (options.jobs > 1) {
        CheckSideBySide(program, options, *ignored, colour, summary);
        return summary.Finish();
    }
    FileChecker checker(program, options, *ignored, colour);
    ProgressLine progress;
    // Lines that scroll by on the screen tell enough.
    const bool quiet = IsTerminal(Stream::Output);
    Output lines([&](std::string_view text) { summary.Write(text); });
    const bool gathered =
        options.format == CheckFormat::List || options.format == CheckFormat::Count;
    for (const std::string& file : options.files) {
        TextToCheck text = TextToCheck::Open(file);
        const SideBySide::Result result =
            checker.Check(text, gathered ? lines : out, quiet ? nullptr : &progress);
        progress.Clear();
        lines.Flush();
        summary.Add(result);
    }
    return summary.Finish();
}

}  // namespace wordhawk
