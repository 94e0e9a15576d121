#pragma once

#include "ui/framework/controls/Control.h"

#include <optional>
#include <vector>

namespace wordhawk {

/// A list of texts, each with a number attached, drawn by the form.
class ListBox : public Control {
  public:
    ListBox() : Control(L"ListBox") {}
    void Create(const Where& where);

    int Count() const { return Index(LB_GETCOUNT); }
    std::wstring Item(int index) const;
    /// Inserts before `index`, at the end for -1. Returns the new entry's index, negative when the
    /// list refused it.
    int Insert(int index, std::wstring_view text, LPARAM data = 0);
    int Append(std::wstring_view text, LPARAM data = 0) { return Insert(-1, text, data); }
    /// Replaces all entries, without redrawing in between.
    void Fill(const std::vector<std::wstring>& texts);
    void RemoveAt(int index) { Send(LB_DELETESTRING, static_cast<WPARAM>(index)); }
    void Clear() { Send(LB_RESETCONTENT); }
    LPARAM Data(int index) const { return Send(LB_GETITEMDATA, static_cast<WPARAM>(index)); }
    /// The first entry equal to `text` without regard to case; -1 when there is none.
    int FindExact(std::wstring_view text) const;

    /// The first entry that begins with `text` without regard to case; -1 when there is none.
    int FindBeginning(std::wstring_view text) const;

    /// -1 for none.
    int Selected() const { return Index(LB_GETCURSEL); }
    /// Does not tell the form. Keeps the entry in view.
    void Select(int index) { Send(LB_SETCURSEL, static_cast<WPARAM>(index)); }
    int Top() const { return Index(LB_GETTOPINDEX); }
    void SetTop(int index) { Send(LB_SETTOPINDEX, static_cast<WPARAM>(index)); }
    /// The entry under a point of the list's own coordinates.
    std::optional<int> At(POINT point) const;
    void SetItemHeight(int pixels);

    std::wstring Caption() const override { return {}; }
    void SetCaption(const std::wstring&) override {}

  protected:
    void CreateWithStyle(const Where& where, DWORD style);
};

}  // namespace wordhawk
