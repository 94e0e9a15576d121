#pragma once

#include "platform/win32/win.h"

namespace wordhawk {

/// Whether a key message repeats a key that was down before.
inline bool IsRepeat(const MSG& message) { return (message.lParam & (LPARAM{1} << 30)) != 0; }

/// Knows where the key that is down went down, so that a key held too long does nothing in a place
/// that the keyboard has come to since.
class HeldKeys {
  public:
    /// Whether a WM_KEYDOWN may do something where the keyboard is now: a new press always, a
    /// repeat only in the control that got the press.
    bool Counts(const MSG& message);
    /// Whatever is down now counts for nothing until it is pressed anew.
    void Forget() { where_ = nullptr; }

  private:
    WPARAM key_ = 0;
    HWND where_ = nullptr;
};

/// For the life of a scope in which a box is up: a key that was down before it came up does not
/// answer it.
class IgnoreHeldKeys {
  public:
    IgnoreHeldKeys();
    ~IgnoreHeldKeys();
    IgnoreHeldKeys(const IgnoreHeldKeys&) = delete;
    IgnoreHeldKeys& operator=(const IgnoreHeldKeys&) = delete;

  private:
    HHOOK hook_;
};

}  // namespace wordhawk
