#pragma once

#include "platform/sound.h"

namespace wordhawk {

/// The computer's loudspeaker.
class SystemSound : public Sound {
  public:
    bool Play(std::wstring_view file) override;
};

}  // namespace wordhawk
