#pragma once

#include <string>
#include <vector>

namespace wordhawk {

/// One of a control's tabs, toolbar buttons or ColumnHeaders, or of the ButtonMenus of a button.
/// Only buttons have a Description and ButtonMenus.
struct FormItem {
    std::wstring caption;
    std::wstring tag;
    std::wstring tool_tip;
    std::wstring description;
    bool drop_down = false;
    std::vector<FormItem> button_menus;
};

/// The text properties of one control, whatever it is made of on screen. A control that lacks a
/// property ignores the write and reads as empty.
class FormControl {
  public:
    virtual ~FormControl() = default;
    /// "Menu", "TabStrip", "Toolbar", "ListView", "CommandButton", "Label", "PictureBox" ...
    virtual std::wstring TypeName() const = 0;
    virtual std::wstring Caption() const { return {}; }
    virtual void SetCaption(const std::wstring&) {}
    virtual std::wstring Tag() const { return {}; }
    virtual void SetTag(const std::wstring&) {}
    virtual std::wstring ToolTipText() const { return {}; }
    virtual void SetToolTipText(const std::wstring&) {}
    virtual std::vector<FormItem> Items() const { return {}; }
    virtual void SetItems(const std::vector<FormItem>&) {}
    virtual void ClearPicture() {}
};

/// A window as far as its texts go.
class Form {
  public:
    virtual ~Form() = default;
    virtual std::wstring Caption() const = 0;
    virtual void SetCaption(const std::wstring&) = 0;
    virtual std::wstring Tag() const = 0;
    virtual void SetTag(const std::wstring&) = 0;
    virtual void ReleaseIcon() {}
    /// Every control of the form; the form keeps them.
    virtual std::vector<FormControl*> Controls() = 0;
};

}  // namespace wordhawk
