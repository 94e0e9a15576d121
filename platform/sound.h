#pragma once

#include <string_view>

namespace wordhawk {

/// Plays sound files.
class Sound {
  public:
    virtual ~Sound() = default;
    /// Starts the file and returns at once. False (and silence) when it cannot be played.
    virtual bool Play(std::wstring_view file) = 0;
};

}  // namespace wordhawk
