#pragma once

#include "cli/letter_case.h"
#include "cli/options.h"
#include "cli/output.h"
#include "dict/dictionary_store.h"
#include "engine/check/text_checker.h"
#include "engine/suggest/suggester.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace wordhawk {

enum class Colour { Off, On };

/// Prints occurrences of unknown words in the chosen format. Suggestions are found once for each
/// distinct word, as long as not too many others came between.
class CheckReport {
  public:
    CheckReport(Suggester& suggester, const CheckOptions& options, Colour colour)
        : suggester_(suggester), options_(options), colour_(colour) {}

    /// What follows is about this file, named as the user named it (UTF-8).
    void BeginFile(std::string_view name);

    void Add(Output& out, const UnknownWord& word, std::uint64_t line, std::uint64_t column);

    /// Prints what was counted since the last part ended.
    void EndPart(Output& out);

  private:
    /// The rest of the line behind the word itself: its suggestions.
    const std::string& TailOf(const UnknownWord& word);
    std::string MakeTail(std::wstring_view listed, LetterCase letter_case);

    Suggester& suggester_;
    const CheckOptions& options_;
    Colour colour_;
    std::string file_;  // as it is printed
    /// By the word and a last character for its case.
    std::unordered_map<std::wstring, std::string> tails_;
    std::size_t tails_size_ = 0;
    std::wstring tail_key_;
    std::unordered_map<std::wstring, std::uint64_t> counts_;
};

}  // namespace wordhawk
