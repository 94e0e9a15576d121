#pragma once

#include "ui/framework/controls/ListBox.h"

#include <vector>

namespace wordhawk {

/// A list in which any number of entries are ticked (the system's selection) and at most one is
/// current: the one that the keyboard is on. Drawn by the form.
class CheckList : public ListBox {
  public:
    enum class Columns { One, Several };
    void Create(const Where& where, Columns columns = Columns::One);

    bool Checked(int index) const { return Send(LB_GETSEL, static_cast<WPARAM>(index)) > 0; }
    void SetChecked(int index, bool checked) { Send(LB_SETSEL, checked, index); }

    /// -1 for none.
    int Current() const;
    void SetCurrent(int index);
    /// The user has been in the list: the entry of the keyboard counts from now on.
    void TakeCurrent();
    /// Removes the current entry; the one behind it becomes current, else the one before.
    void RemoveCurrent();

    void SetColumnWidth(int pixels) { Send(LB_SETCOLUMNWIDTH, static_cast<WPARAM>(pixels)); }

  private:
    bool has_current_ = false;
};

}  // namespace wordhawk
