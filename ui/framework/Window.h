#pragma once

#include "ui/framework/message_handler.h"

namespace wordhawk {

/// A window of a class of our own. The object owns the window: destroying either ends the other's
/// use of it, and the window never calls an object that is gone.
class Window : public MessageHandler {
  public:
    ~Window() override;

    struct Creation {
        const wchar_t* class_name;
        DWORD style = WS_CHILD | WS_VISIBLE;
        DWORD extended_style = 0;
        HWND parent = nullptr;
        int id = 0;
    };
    /// Makes the window with no size, registering the class when it is new. False when the system
    /// refuses.
    bool Create(const Creation& creation);
    /// Destroys the window; handlers still see its last messages.
    void Destroy();

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam,
                                      LPARAM lparam) noexcept;
};

}  // namespace wordhawk
