#include "cli/byte_source.h"
#include "cli/check_report.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/output.h"
#include "cli/progress_line.h"
#include "cli/session.h"
#include "cli/text_blocks.h"
#include "cli/text_position.h"

#include <atomic>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <unordered_set>

namespace wordhawk {
namespace {

/// What came of one file apart from its printed lines.
struct FileResult {
    bool found = false;
    /// In format List: its unknown words in order.
    std::vector<std::wstring> words;
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
          report_(store_, SuggestionRules::From(settings_), options, colour) {}

    FileResult Check(const std::string& file, Output& out, ProgressLine* progress) {
        FileResult result;
        const bool from_input = file == "-";
        const std::string name = from_input ? "<stdin>" : file;
        auto source =
            from_input ? ByteSource::StandardInput() : ByteSource::OpenFile(PathFromArgument(file));
        if (!source) {
            result.error_line = MessageLine(name, ToUtf8(source.error().what));
            return result;
        }
        TextBlocks blocks(std::move(*source),
                          IsRichTextName(file) ? DocumentKind::RichText : DocumentKind::ByContent,
                          *state_.CodePage);
        TextChecker checker(store_, rules_);
        report_.BeginFile(name);
        TextPosition position;
        std::uint64_t base = 0;  // offset of the block
        while (true) {
            const auto block = blocks.Next();
            if (!block) {
                result.error_line = MessageLine(name, ToUtf8(block.error().what));
                break;
            }
            if (block->empty()) break;
            if (options_.format == CheckFormat::List) {
                checker.Feed(*block, [](const UnknownWord&) {});
            } else {
                ReportBlock(checker, *block, base, position, out);
            }
            base += block->size();
            if (progress != nullptr) progress->Show(name, blocks.PercentRead());
        }
        // Words of a dictionary that cannot be read are not unknown ones.
        if (result.error_line.empty()) result.error_line = UnreadableLines(store_);
        result.found = !checker.Words().empty();
        if (options_.format == CheckFormat::List) result.words = checker.Words();
        return result;
    }

  private:
    void ReportBlock(TextChecker& checker, std::wstring_view block, std::uint64_t base,
                     TextPosition& position, Output& out) {
        std::size_t walked = 0;
        checker.Feed(block, [&](const UnknownWord& word) {
            const auto at = static_cast<std::size_t>(word.offset - base);
            position.Advance(block.substr(walked, at - walked));
            walked = at;
            report_.Add(out, word, position.Line(), position.Column());
        });
        position.Advance(block.substr(walked));
    }

    ProgramState state_;
    Settings settings_;
    DictionaryStore store_;
    SplitRules rules_;
    const CheckOptions& options_;
    CheckReport report_;
};

/// Puts the results together: messages, listed words once over all files, the exit code.
class Summary {
  public:
    explicit Summary(Output& out) : out_(out) {}

    void Add(FileResult result, bool only_file) {
        found_ = found_ || result.found;
        for (const std::wstring& word : result.words) {
            if (only_file || listed_.insert(word).second) out_ << word << '\n';
        }
        if (!result.error_line.empty()) {
            failed_ = true;
            out_.Flush();
            // Each file meets a dictionary that cannot be read; once is enough.
            if (told_.insert(result.error_line).second) ShowMessageLine(result.error_line);
        }
    }

    int ExitCode(const CheckOptions& options) const {
        if (failed_ || out_.Failed()) return kExitFailed;
        const bool report = !options.exit_zero && options.format != CheckFormat::Words;
        return found_ && report ? kExitFound : kExitFine;
    }

  private:
    Output& out_;
    std::unordered_set<std::wstring> listed_;
    std::unordered_set<std::string> told_;
    bool found_ = false;
    bool failed_ = false;
};

/// Checks every file on several threads; what they print comes out in the files' order.
void CheckSideBySide(const Program& program, const CheckOptions& options, Colour colour,
                     Output& out, Summary& summary) {
    struct Slot {
        Output text{nullptr};
        FileResult result;
        bool done = false;
    };
    std::vector<Slot> slots(options.files.size());
    std::atomic<std::size_t> next{0};
    std::mutex mutex;
    std::condition_variable changed;

    const auto work = [&] {
        FileChecker checker(program, options, colour);
        for (std::size_t i = next++; i < slots.size(); i = next++) {
            FileResult result = checker.Check(options.files[i], slots[i].text, nullptr);
            const std::lock_guard lock(mutex);
            slots[i].result = std::move(result);
            slots[i].done = true;
            changed.notify_one();
        }
    };
    std::vector<std::jthread> threads;
    const auto count = std::min(static_cast<std::size_t>(options.jobs), slots.size());
    for (std::size_t i = 0; i < count; ++i) threads.emplace_back(work);

    ProgressLine progress;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        {
            std::unique_lock lock(mutex);
            while (!slots[i].done) {
                changed.wait_for(lock, std::chrono::milliseconds(250));
                progress.Show("checking " + std::to_string(slots.size()) + " files",
                              static_cast<int>(i * 100 / slots.size()));
            }
        }
        progress.Clear();
        out << slots[i].text.Take();
        summary.Add(std::move(slots[i].result), slots.size() == 1);
    }
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
    Summary summary(out);
    const Colour colour = ChooseColour();
    if (options.jobs > 1 && options.files.size() > 1) {
        CheckSideBySide(program, options, colour, out, summary);
    } else {
        FileChecker checker(program, options, colour);
        ProgressLine progress;
        // Lines that scroll by on the screen tell enough.
        const bool quiet = options.format != CheckFormat::List && IsTerminal(Stream::Output);
        for (const std::string& file : options.files) {
            FileResult result = checker.Check(file, out, quiet ? nullptr : &progress);
            progress.Clear();
            summary.Add(std::move(result), options.files.size() == 1);
        }
    }
    out.Flush();
    return summary.ExitCode(options);
}

}  // namespace wordhawk
