#pragma once

#include "lang/form_texts.h"
#include "platform/win32/win.h"
#include "ui/framework/tool_tips.h"

#include <string>
#include <string_view>

namespace wordhawk {

/// What every control of a form has. The window belongs to the form's window and goes with it; the
/// object belongs to the form's object.
class Control : public FormControl {
  public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Where a control goes and who shows its tool tip.
    struct Where {
        HWND parent;
        int id;
        ToolTips* tips = nullptr;
    };

    HWND Handle() const { return handle_; }
    int Id() const { return id_; }

    std::wstring Text() const;
    void SetText(std::wstring_view text);
    bool Enabled() const { return IsWindowEnabled(handle_) != FALSE; }
    void SetEnabled(bool enabled);
    /// The control's own state, whatever that of the windows around it.
    bool Visible() const;
    void SetVisible(bool visible);
    bool HasFocus() const;
    void SetFocus() const;
    void Redraw() const { InvalidateRect(handle_, nullptr, TRUE); }
    /// Position in its parent.
    RECT Bounds() const;

    // FormControl
    std::wstring TypeName() const override { return type_name_; }
    std::wstring Caption() const override { return Text(); }
    void SetCaption(const std::wstring& caption) override { SetText(caption); }
    std::wstring Tag() const override { return tag_; }
    void SetTag(const std::wstring& tag) override { tag_ = tag; }
    std::wstring ToolTipText() const override { return tool_tip_; }
    void SetToolTipText(const std::wstring& text) override;

  protected:
    explicit Control(const wchar_t* type_name) : type_name_(type_name) {}

    void Make(const Where& where, const wchar_t* class_name, DWORD style, DWORD extended_style = 0);

    LRESULT Send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
        return SendMessageW(handle_, message, wparam, lparam);
    }
    int Index(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
        return static_cast<int>(Send(message, wparam, lparam));
    }

    HWND handle_ = nullptr;
    int id_ = 0;

  private:
    const wchar_t* type_name_;
    std::wstring tag_;
    std::wstring tool_tip_;
    ToolTips* tips_ = nullptr;
};

}  // namespace wordhawk
