#pragma once

#include "cli/options.h"
#include "engine/program.h"
#include "platform/ui_services.h"

#include <memory>

namespace wordhawk {

/// Messages of the core as lines on stderr; questions are answered with their default.
class StderrUi : public UiServices {
  public:
    Answer ShowMessage(std::wstring_view text, std::wstring_view title, MessageIcon icon,
                       MessageButtons buttons) override;
    void Beep() override {}
    void SetBusy(bool) override {}
};

/// What a command works with: the program over the data folder that the options name.
struct Session {
    explicit Session(const GlobalOptions& options);

    StderrUi ui;
    Program program;
};

/// Checks names and values of --set and --flag; the message of the first wrong one, or nothing.
std::optional<std::string> WrongOverride(const GlobalOptions& options);

/// Whether the language in force has any dictionary file, or the user any custom one.
bool HasDictionaries(Program& program);

/// A line for each dictionary file that is there but could not be read, as far as a person wants to
/// read them; empty when there was none.
std::string UnreadableLines(const DictionaryStore& store);

/// `exit_code`, or the code for a failure after telling of dictionaries that could not be read.
int FinishedWith(int exit_code, const DictionaryStore& store);

/// The line that says that there are none.
std::string NoDictionariesLine(const Program& program);

/// Says on stderr that a custom dictionary is not searched and how it will be; nothing when it is.
void TellWhenNotSearched(const Program& program, const GlobalOptions& options,
                         std::wstring_view dictionary);

}  // namespace wordhawk
