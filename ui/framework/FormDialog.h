#pragma once

#include "lang/form_texts.h"
#include "ui/framework/Dialog.h"
#include "ui/framework/dark_frames.h"
#include "ui/framework/layout.h"
#include "ui/framework/theme.h"
#include "ui/framework/tool_tips.h"

#include <string>
#include <vector>

namespace wordhawk {

/// A dialog whose controls carry texts: as large as its layout asks, over its owner, in the colours
/// of the system. Esc and the close button are IDCANCEL.
class FormDialog : public Dialog, public Form {
  public:
    // Form
    std::wstring Caption() const override;
    void SetCaption(const std::wstring& caption) override;
    std::wstring Tag() const override { return tag_; }
    void SetTag(const std::wstring& tag) override { tag_ = tag; }

    const Theme& Colours() const { return theme_; }

  protected:
    /// Makes the controls.
    virtual void MakeControls() = 0;
    /// Gives them their texts and contents.
    virtual void Form_Load() = 0;
    virtual layout::NodePtr Layout() const = 0;
    /// The control that has the keyboard first.
    virtual const Control& FirstControl() const = 0;
    /// Sizes that hang on the font, before the layout is measured.
    virtual void OnMeasure() {}

    /// Arranges the controls anew after texts or visible controls changed; the window grows as they
    /// need, and shrinks unless the user can size it.
    void Fit();
    layout::Measure MeasureNow() const { return {Dpi(), Font()}; }
    ToolTips& Tips() { return tips_; }

    void OnInit() override;
    void OnShown() override;
    void OnFontsChanged() override;
    void OnSize(int width, int height) override;
    void OnMinimumSize(SIZE& smallest) override;
    void OnQueued(const MSG& message) override { tips_.Relay(message); }
    bool OnKey(const MSG& message) override;
    Reply OnNotify(NMHDR& news) override;
    HBRUSH OnControlColor(UINT message, HDC device, HWND control) override;
    bool OnMeasureItem(MEASUREITEMSTRUCT& item) override;
    void OnAppearanceChanged() override;

  private:
    SIZE NaturalSize() const;

    Theme theme_;
    DarkFrames frames_{theme_};
    ToolTips tips_;
    std::wstring tag_;
    bool placed_ = false;
};

}  // namespace wordhawk
