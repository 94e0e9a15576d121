#pragma once

#include "cli/block_order.h"
#include "cli/check_report.h"
#include "cli/ignored_words.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/progress_line.h"
#include "cli/side_by_side.h"
#include "cli/text_blocks.h"
#include "engine/check/text_checker.h"
#include "engine/program.h"
#include "engine/suggest/suggester.h"

#include <memory>
#include <optional>
#include <string>

namespace wordhawk {

/// A text that is to be checked. Errors of opening it are kept until it is read.
struct TextToCheck {
    /// `file` as the user named it; "-" is standard input.
    static TextToCheck Open(const std::string& file);

    std::string name;  // for people and reports
    Path folder;       // where it stands; of standard input the current one
    Result<TextBlocks> blocks;
};

/// Checks texts with dictionaries of its own, so that each thread can have one.
class FileChecker {
  public:
    /// `ignored` are words that are not reported, whatever the text; it outlives the checker.
    FileChecker(const Program& program, const CheckOptions& options, const WordSet& ignored,
                Colour colour);

    /// Prints in format List what was not lately printed; repeats are for the caller to drop, as
    /// counts of one word are for him to add.
    SideBySide::Result Check(TextToCheck& text, Output& out, ProgressLine* progress);

    /// The same for a block of a text that several threads check.
    SideBySide::Result CheckBlock(const std::string& name, const Path& folder, RawBlock& block,
                                  BlockOrder::Turn& turn, Output& out);

  private:
    Result<void> CheckBlocks(TextToCheck& text, Output& out, ProgressLine* progress,
                             SideBySide::Result& result);
    void Begin(const std::string& name, const Path& folder, SideBySide::Result& result);
    template <class Text>
    BlockOrder::State& TakeTurn(Text& text, BlockOrder::Turn& turn);
    bool IsIgnored(std::wstring_view word);
    bool Report(TextChecker& checker, std::wstring_view fed, std::wstring_view text,
                TextPosition& position, Output& out);
    bool ReportAscii(TextChecker& checker, std::string_view text, Output& out);
    SideBySide::Result& WithUnreadable(SideBySide::Result& result) const;

    ProgramState state_;
    Settings settings_;
    DictionaryStore store_;
    SplitRules rules_;
    const CheckOptions& options_;
    /// Whether the report tells lines and columns.
    bool places_;
    Suggester suggester_;
    CheckReport report_;
    const WordSet& ignored_;
    ProjectWords projects_;
    /// Of the text in hand.
    std::shared_ptr<const WordSet> project_words_;
    /// For blocks whose addresses are blanked already; made for the first one.
    std::optional<TextChecker> block_checker_;
};

}  // namespace wordhawk
