#include "cli/byte_source.h"
#include "cli/check_report.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/output.h"
#include "cli/progress_line.h"
#include "cli/seen_words.h"
#include "cli/session.h"
#include "cli/side_by_side.h"
#include "cli/text_blocks.h"
#include "cli/text_position.h"
#include "cli/visible_text.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <thread>
#include <unordered_set>

namespace wordhawk {
namespace {

/// What came of one file apart from what it printed.
struct FileResult {
    bool found = false;
    std::string error_line;
};

bool IsRichTextName(std::string_view name) {
    return name.size() >= 4 && EqualIgnoringCase(FromUtf8(name.substr(name.size() - 4)), L".rtf");
}

/// Checks files one after another with dictionaries of its own, so that each thread can have one.
class FileChecker {
  public:
    FileChecker(const Program& program, const CheckOptions& options, Colour colour)
        : state_(program.state),
          settings_(program.settings),
          store_(state_, settings_),
          rules_(SplitRules::From(state_, settings_)),
          options_(options),
          suggester_(store_, settings_),
          report_(suggester_, options, colour) {}

    /// Prints in format List what was not lately printed; repeats are for the caller to drop.
    FileResult Check(const std::string& file, Output& out, ProgressLine* progress) {
        FileResult result;
        const std::string name = file == "-" ? "<stdin>" : file;
        try {
            const auto checked = CheckBlocks(file, name, out, progress, result);
            if (!checked) result.error_line = MessageLine(name, ToUtf8(checked.error().what));
        } catch (const std::bad_alloc& error) {
            result.error_line = MessageLine(name, DescribeException(error));
        }
        // Words of a dictionary that cannot be read are not unknown ones.
        if (result.error_line.empty()) result.error_line = UnreadableLines(store_);
        return result;
    }

  private:
    Result<void> CheckBlocks(const std::string& file, const std::string& name, Output& out,
                             ProgressLine* progress, FileResult& result) {
        auto source = file == "-" ? ByteSource::StandardInput()
                                  : ByteSource::OpenFile(PathFromArgument(file));
        if (!source) return tl::unexpected(source.error());
        TextBlocks blocks(std::move(*source),
                          IsRichTextName(file) ? DocumentKind::RichText : DocumentKind::ByContent,
                          *state_.CodePage);
        TextChecker checker(store_, rules_, Remember::Lately);
        report_.BeginFile(name);
        const std::string shown = VisibleText(name);
        TextPosition position;
        std::uint64_t base = 0;  // offset of the block
        while (true) {
            const auto block = blocks.Next();
            if (!block) return tl::unexpected(block.error());
            if (block->empty()) return {};
            result.found |= ReportBlock(checker, *block, base, position, out);
            base += block->size();
            if (progress != nullptr) progress->Show(shown, blocks.PercentRead());
        }
    }

    /// Whether the block holds an unknown word.
    bool ReportBlock(TextChecker& checker, std::wstring_view block, std::uint64_t base,
                     TextPosition& position, Output& out) {
        const bool places =
            options_.format == CheckFormat::Lines || options_.format == CheckFormat::Json;
        std::size_t walked = 0;
        bool found = false;
        checker.Feed(block, [&](const UnknownWord& word) {
            found = true;
            if (!places) {
                report_.Add(out, word, 0, 0);
                return;
            }
            const auto at = static_cast<std::size_t>(word.offset - base);
            position.Advance(block.substr(walked, at - walked));
            walked = at;
            report_.Add(out, word, position.Line(), position.Column());
        });
        if (places) position.Advance(block.substr(walked));
        return found;
    }

    ProgramState state_;
    Settings settings_;
    DictionaryStore store_;
    SplitRules rules_;
    const CheckOptions& options_;
    Suggester suggester_;
    CheckReport report_;
};

/// Puts the results together: what is printed, messages, the exit code.
class Summary {
  public:
    Summary(Output& out, CheckFormat format) : out_(out), format_(format) {}

    /// Whole lines that a file printed; of listed words, each once over all files.
    void Write(std::string_view lines) {
        if (format_ == CheckFormat::Lines || format_ == CheckFormat::Json) {
            out_ << lines;
            return;
        }
        while (!lines.empty()) {
            const std::string_view line = lines.substr(0, lines.find('\n'));
            lines.remove_prefix(line.size() + 1);
            if (format_ == CheckFormat::List && !listed_.Add(line)) continue;
            // As text, so that a terminal shows what it could not bear.
            out_ << FromUtf8(line) << '\n';
        }
    }

    void Add(const FileResult& result) {
        found_ = found_ || result.found;
        if (result.error_line.empty()) return;
        failed_ = true;
        out_.Flush();
        // Each file meets a dictionary that cannot be read; once is enough.
        if (told_.insert(result.error_line).second) ShowMessageLine(result.error_line);
    }

    int ExitCode(const CheckOptions& options) const {
        if (failed_ || out_.Failed()) return kExitFailed;
        const bool report = !options.exit_zero && options.format != CheckFormat::Words;
        return found_ && report ? kExitFound : kExitFine;
    }

  private:
    Output& out_;
    CheckFormat format_;
    SeenWords listed_;
    std::unordered_set<std::string> told_;
    bool found_ = false;
    bool failed_ = false;
};

/// Checks every file on several threads; what they print comes out in the files' order.
void CheckSideBySide(const Program& program, const CheckOptions& options, Colour colour,
                     Summary& summary) {
    const std::size_t count = options.files.size();
    std::vector<FileResult> results(count);
    ProgressLine progress;
    SideBySide plan;
    plan.jobs = count;
    // More threads than the machine can run would only hold more dictionaries in memory.
    const std::size_t useful = std::max(2 * std::thread::hardware_concurrency(), 4u);
    plan.threads = std::min({static_cast<std::size_t>(options.jobs), count, useful});
    plan.make_worker = [&]() -> SideBySide::Job {
        const auto checker = std::make_shared<FileChecker>(program, options, colour);
        return [&, checker](std::size_t i, Output& text) {
            results[i] = checker->Check(options.files[i], text, nullptr);
        };
    };
    plan.write = [&](std::string_view lines) {
        progress.Clear();
        summary.Write(lines);
    };
    plan.finished = [&](std::size_t i, const std::string& failure) {
        progress.Clear();
        if (!failure.empty()) results[i].error_line = MessageLine(options.files[i], failure);
        summary.Add(results[i]);
    };
    plan.waiting = [&](std::size_t i) {
        progress.Show("checking " + std::to_string(count) + " files",
                      static_cast<int>(i * 100 / count));
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
    Output out(stdout);
    Summary summary(out, options.format);
    const Colour colour = ChooseColour();
    if (options.jobs > 1 && options.files.size() > 1) {
        CheckSideBySide(program, options, colour, summary);
    } else {
        FileChecker checker(program, options, colour);
        ProgressLine progress;
        // Lines that scroll by on the screen tell enough.
        const bool quiet = IsTerminal(Stream::Output);
        Output listed([&](std::string_view lines) { summary.Write(lines); });
        Output& printed = options.format == CheckFormat::List ? listed : out;
        for (const std::string& file : options.files) {
            const FileResult result = checker.Check(file, printed, quiet ? nullptr : &progress);
            progress.Clear();
            listed.Flush();
            summary.Add(result);
        }
    }
    out.Flush();
    return summary.ExitCode(options);
}

}  // namespace wordhawk
