#pragma once

#include "platform/win32/win.h"

#include <optional>
#include <string>
#include <vector>

namespace wordhawk {

/// What a control told its parent: which control, and the notification code of its class.
struct ControlEvent {
    int id;
    int code;
    HWND control;
};

/// Where and how a context menu was asked for.
struct ContextRequest {
    HWND control;
    POINT screen;
    /// By the keyboard: `screen` is then meaningless.
    bool by_keyboard;

    /// Where the menu belongs, in screen coordinates: under the pointer, or on the control.
    POINT Place() const;
};

/// Takes the raw messages of a window apart into typed calls. Derived classes override the calls
/// they care about; none of them may let an exception out that a caller could act on: the window
/// procedure swallows it, and the message then counts as unanswered.
class MessageHandler {
  public:
    MessageHandler() = default;
    MessageHandler(const MessageHandler&) = delete;
    MessageHandler& operator=(const MessageHandler&) = delete;
    virtual ~MessageHandler() = default;

    /// Null before creation and once the window is gone.
    HWND Handle() const { return handle_; }

    /// Dots per inch of the window's monitor, and a length given for 96 of them.
    int Dpi() const;
    int Scaled(int length_at_96) const { return MulDiv(length_at_96, Dpi(), 96); }

  protected:
    /// An answer to the system; none leaves the message to the default procedure.
    using Reply = std::optional<LRESULT>;

    virtual Reply OnMessage(UINT message, WPARAM wparam, LPARAM lparam);

    virtual bool OnCommand(const ControlEvent&) { return false; }
    virtual Reply OnNotify(NMHDR&) { return {}; }
    virtual void OnScroll(HWND /*control*/) {}
    /// The mouse or the key that moved it was let go.
    virtual void OnScrollEnd(HWND /*control*/) {}
    virtual void OnSize(int /*width*/, int /*height*/) {}
    /// `dpi` is the new value; the window has its new size already.
    virtual void OnDpiChanged(int /*dpi*/) {}
    virtual void OnMinimumSize(SIZE& /*smallest*/) {}
    virtual bool OnTimer(UINT_PTR /*id*/) { return false; }
    /// True: handled, the window stays unless the handler destroyed it.
    virtual bool OnClose() { return false; }
    virtual void OnDestroy() {}
    virtual bool OnDrawItem(const DRAWITEMSTRUCT&) { return false; }
    virtual bool OnMeasureItem(MEASUREITEMSTRUCT&) { return false; }
    /// The brush behind a control, after its text colours were set; null for the system's.
    virtual HBRUSH OnControlColor(UINT /*message*/, HDC, HWND /*control*/) { return nullptr; }
    virtual bool OnEraseBackground(HDC) { return false; }
    virtual bool OnContextMenu(const ContextRequest&) { return false; }
    virtual void OnInitMenu(HMENU) {}
    virtual void OnDropFiles(const std::vector<std::wstring>& /*paths*/) {}
    /// Colours, theme, fonts or contrast of the system changed.
    virtual void OnAppearanceChanged() {}
    virtual void OnActivate(bool /*active*/) {}

    /// Calls OnMessage and keeps every exception inside.
    Reply Dispatch(UINT message, WPARAM wparam, LPARAM lparam) noexcept;

    HWND handle_ = nullptr;

  private:
    Reply OnWindowMessage(UINT message, WPARAM wparam, LPARAM lparam);
    Reply OnChildMessage(UINT message, WPARAM wparam, LPARAM lparam);
};

}  // namespace wordhawk
