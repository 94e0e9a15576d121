#pragma once

#include "cli/output.h"
#include "engine/check/text_checker.h"
#include "engine/program.h"
#include "engine/suggest/suggester.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace wordhawk {

/// One conversation in the line protocol of "ispell -a". The client sends lines: texts to check,
/// best with "^" before them, or commands that begin with one of * & @ # ! % ` + - ~.
/// Each text is answered by a line for each checked word and an empty line; commands are not
/// answered. Offsets count characters from the start of the line, its "^" included.
class PipeSession {
  public:
    PipeSession(Program& program, Output& out);

    /// Handles one line (no line end) in UTF-8 or, when it is not that, in the ANSI page; answers
    /// are in the encoding that the client was last seen to use.
    void HandleLine(std::string_view line);

    /// Whether the last attempt to save words failed.
    bool SaveFailed() const { return save_failed_; }

  private:
    enum class Detail { Full, Terse, WithCorrectWords };

    /// True when the line was a command.
    bool HandleCommand(std::wstring_view line);
    void CheckLine(std::wstring_view line);
    void ReportUnknown(std::wstring_view word, std::size_t offset);
    void Write(std::wstring_view text);
    void SavePersonalWords();
    TextChecker& Checker();

    Program& program_;
    Output& out_;
    Suggester suggester_;
    std::unique_ptr<TextChecker> checker_;
    std::uint64_t fed_ = 0;  // units that checker_ was given
    Detail detail_ = Detail::Full;
    bool ansi_client_ = false;
    bool save_failed_ = false;
    /// Lower-cased words that count as known until the end.
    std::unordered_set<std::wstring> accepted_;
    /// Words for the personal dictionary that were not saved yet.
    std::vector<std::wstring> personal_;
};

}  // namespace wordhawk
