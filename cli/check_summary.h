#pragma once

#include "cli/options.h"
#include "cli/output.h"
#include "cli/seen_words.h"
#include "cli/side_by_side.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace wordhawk {

/// Puts the results of a check together: what is printed, messages, the exit code.
class CheckSummary {
  public:
    CheckSummary(Output& out, const CheckOptions& options) : out_(out), options_(options) {}

    /// Whole lines that the check of a text printed; of listed words, each once over all texts.
    void Write(std::string_view lines);

    void Add(const SideBySide::Result& result);

    /// Prints what could not be printed earlier, and returns the exit code.
    int Finish();

  private:
    void Count(std::string_view line);
    void WriteCounts();

    Output& out_;
    const CheckOptions& options_;
    SeenWords listed_;
    std::unordered_map<std::string, std::uint64_t> counts_;
    std::unordered_set<std::string> told_;
    /// Dictionaries that could not be read.
    std::unordered_set<std::string> unreadable_;
    bool found_ = false;
    bool failed_ = false;
};

}  // namespace wordhawk
