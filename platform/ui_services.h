#pragma once

#include "platform/files.h"

#include <optional>
#include <string>

namespace wordhawk {

enum class MessageIcon { None, Information, Exclamation, Question };
enum class MessageButtons { Ok, YesNo, YesNoDefaultNo };
enum class Answer { Ok, Yes, No };

/// What the core asks of the person at the screen. The window answers with real boxes, the command
/// line with lines on stderr, tests with a recording fake.
class UiServices {
  public:
    virtual ~UiServices() = default;

    virtual Answer ShowMessage(std::wstring_view text, std::wstring_view title, MessageIcon icon,
                               MessageButtons buttons) = 0;
    virtual void Beep() = 0;
    /// Busy pointer on or off; calls nest.
    virtual void SetBusy(bool busy) = 0;
};

/// Busy pointer for the life of a scope.
class Hourglass {
  public:
    explicit Hourglass(UiServices& ui) : ui_(ui) { ui_.SetBusy(true); }
    ~Hourglass() { ui_.SetBusy(false); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

  private:
    UiServices& ui_;
};

}  // namespace wordhawk
