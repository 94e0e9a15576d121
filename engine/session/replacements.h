#pragma once

#include "platform/modSect.h"

#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// The replacement texts used most recently, newest first, no two equal without regard to case.
class RecentChanges {
  public:
    static constexpr std::size_t kMaximum = 8;

    /// Puts the stored texts before those already there, in their stored order.
    void LoadRecentChanges(const modSect::ProfileFile& settings_file);
    /// Makes `text` the newest; an empty text is ignored.
    void RememberReplacement(std::wstring_view text);
    /// Writes the texts under keys "0", "1", ... False when the file could not be written.
    bool SaveRecentChanges(const modSect::ProfileFile& settings_file) const;

    const std::vector<std::wstring>& Items() const { return items_; }

  private:
    std::vector<std::wstring> items_;
};

}  // namespace wordhawk
