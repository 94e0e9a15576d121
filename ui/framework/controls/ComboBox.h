#pragma once

#include "ui/framework/controls/Control.h"

#include <vector>

namespace wordhawk {

/// A drop-down list to choose one text from.
class ComboBox : public Control {
  public:
    ComboBox() : Control(L"ComboBox") {}
    void Create(const Where& where);

    int Count() const { return Index(CB_GETCOUNT); }
    std::wstring Item(int index) const;
    void Fill(const std::vector<std::wstring>& texts);
    /// -1 for none.
    int Selected() const { return Index(CB_GETCURSEL); }
    void Select(int index) { Send(CB_SETCURSEL, static_cast<WPARAM>(index)); }
    /// The first entry equal to `text` without regard to case; -1 when there is none.
    int FindExact(std::wstring_view text) const;
    std::vector<std::wstring> Texts() const;
    bool DroppedDown() const { return Send(CB_GETDROPPEDSTATE) != 0; }
    /// Height of an entry, and of the text in the closed box.
    void SetItemHeight(int pixels);
    /// Least width of the list when it is open.
    void SetListWidth(int pixels) { Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(pixels)); }

    std::wstring Caption() const override { return {}; }
    void SetCaption(const std::wstring&) override {}
};

}  // namespace wordhawk
