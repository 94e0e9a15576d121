#pragma once

#include <chrono>
#include <string_view>

namespace wordhawk {

/// One line on stderr that tells how far long work is: shown only to a person, and only once the
/// work has taken a second; gone again at the end.
class ProgressLine {
  public:
    ProgressLine();
    ~ProgressLine() { Clear(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// `percent` below 0: not known.
    void Show(std::string_view what, int percent);
    /// Takes the line away, before other output.
    void Clear();

  private:
    bool enabled_;
    bool shown_ = false;
    std::chrono::steady_clock::time_point next_;
};

}  // namespace wordhawk
