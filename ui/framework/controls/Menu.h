#pragma once

#include "lang/form_texts.h"
#include "platform/win32/handle.h"

#include <memory>
#include <string>
#include <vector>

namespace wordhawk {

/// One entry of a pop-up menu.
class MenuItem : public FormControl {
  public:
    MenuItem(HMENU menu, int id) : menu_(menu), id_(id) {}

    int Id() const { return id_; }
    bool Enabled() const;
    void SetEnabled(bool enabled);
    bool Checked() const;
    void SetChecked(bool checked);

    // FormControl: a menu entry carries its text id in its caption.
    std::wstring TypeName() const override { return L"Menu"; }
    std::wstring Caption() const override;
    void SetCaption(const std::wstring& caption) override;

  private:
    UINT State() const;

    HMENU menu_;
    int id_;
};

/// A menu shown on a right click. Its entries keep their index for life, separators count too.
class PopupMenu {
  public:
    PopupMenu() : menu_(CreatePopupMenu()) {}

    HMENU Handle() const { return menu_.Get(); }
    MenuItem& Add(int id, const std::wstring& caption);
    void AddSeparator();
    std::size_t Count() const { return items_.size(); }
    /// Null for a separator.
    MenuItem* operator[](std::size_t index) { return items_[index].get(); }
    /// Drops the entries from `first` on.
    void RemoveFrom(std::size_t first);

  private:
    MenuHandle menu_;
    std::vector<std::unique_ptr<MenuItem>> items_;
};

}  // namespace wordhawk
