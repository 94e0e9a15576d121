#pragma once

#include "platform/win32/handle.h"
#include "ui/framework/message_handler.h"

namespace wordhawk {

/// A window under the system's dialog manager (Tab, Enter, Esc, accelerators), whose controls are
/// made in code. The object owns the window.
class Dialog : public MessageHandler {
  public:
    ~Dialog() override;

    /// Shows the dialog over its owner, which takes no input meanwhile, and runs until Close;
    /// returns its result, 0 when the dialog could not be made or the program ends.
    INT_PTR ShowModal(HWND owner);
    /// Makes the dialog hidden, to be shown by the caller. False when the system refuses.
    bool Create(HWND owner);
    /// Ends a modal dialog with the result; destroys a modeless one.
    void Close(INT_PTR result);

    /// The system's message font for the dialog's monitor.
    HFONT Font() const { return font_.Get(); }
    HFONT BoldFont() const { return bold_font_.Get(); }

    /// Lets the dialog have a message of the thread's loop first. True: it was for the dialog.
    bool PreTranslate(MSG& message);

  protected:
    struct Look {
        DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
        DWORD extended_style = 0;
        /// A class of its own lets others find the window; null for the system's dialog class.
        const wchar_t* class_name = nullptr;
        WORD icon_id = 0;
    };
    virtual Look WantedLook() const { return {}; }
    /// Makes the controls. The window has no size yet; the fonts are there.
    virtual void OnInit() = 0;
    /// A message of the thread's loop for the dialog or one of its controls.
    virtual void OnQueued(const MSG&) {}
    /// First refusal of a key before the dialog manager sees it.
    virtual bool OnKey(const MSG&) { return false; }
    /// The dialog manager has handled a key's message, which may have moved the keyboard away from
    /// `focus_before`.
    virtual void OnKeyHandled(UINT /*message*/, HWND /*focus_before*/) {}
    /// The dialog has come up for ShowModal.
    virtual void OnShown() {}
    /// Fonts changed with the monitor's DPI; controls have them already.
    virtual void OnFontsChanged() {}

    Reply OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
    void OnDpiChanged(int dpi) override;

    /// Hands the fonts to every control, also in panels.
    void ApplyFonts();

  private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wparam,
                                      LPARAM lparam) noexcept;
    void Begin(HWND window);
    void MakeFonts();
    void RegisterOwnClass(const Look& look) const;

    FontHandle font_;
    FontHandle bold_font_;
    bool modal_ = false;
    INT_PTR result_ = 0;
};

}  // namespace wordhawk
