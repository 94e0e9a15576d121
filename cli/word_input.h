#pragma once

#include "cli/options.h"
#include "platform/result.h"
#include "platform/text.h"

#include <functional>
#include <string>
#include <string_view>

namespace wordhawk {

/// Lines of standard input as they arrive, without their CR LF or LF.
class InputLines {
  public:
    /// False at the end. `before_waiting` runs whenever no whole line is at hand.
    bool Next(std::string& line, const std::function<void()>& before_waiting);
    /// Whether reading failed.
    bool Failed() const { return failed_; }

  private:
    std::string buffer_;
    std::size_t at_ = 0;
    bool at_end_ = false;
    bool failed_ = false;
};

/// A line or argument as text: UTF-8, else the ANSI page.
std::wstring TextOfBytes(std::string_view bytes, const AnsiCodePage& page);

/// Why a dictionary cannot hold the word; empty when it can.
std::string ObjectionTo(std::wstring_view word, const AnsiCodePage& page);

/// Calls `sink` for the words of the options, then for those of standard input when it was asked
/// for: trimmed, without empty ones. Errors: reading failed.
Result<void> ForEachWord(const WordOptions& options, const AnsiCodePage& page,
                         const std::function<void(std::wstring_view)>& sink);

}  // namespace wordhawk
