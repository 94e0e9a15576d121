#pragma once

namespace wordhawk {

/// Tells whether the program runs inside its development environment. The built program never does;
/// only a debug build, whose assertions are live, can answer true.
class cIsInIDE {
  public:
    bool IsInIDE();

  private:
    bool MarkInIDE();
    bool in_ide_ = false;
};

}  // namespace wordhawk
