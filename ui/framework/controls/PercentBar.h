#pragma once

#include "ui/framework/controls/Control.h"
#include "ui/framework/theme.h"

namespace wordhawk {

/// A bar from 0 to 100 with the number in it, drawn by the form; the number is its text, so that
/// screen readers have it.
class PercentBar : public Control {
  public:
    PercentBar() : Control(L"PictureBox") {}
    void Create(const Where& where);
    int Percent() const { return percent_; }
    void SetPercent(int percent);
    void Draw(const Theme& theme, const DRAWITEMSTRUCT& item) const;

    std::wstring Caption() const override { return {}; }
    void SetCaption(const std::wstring&) override {}

  private:
    int percent_ = 0;
};

}  // namespace wordhawk
