#pragma once

#include "ui/framework/Panel.h"
#include "ui/framework/controls/Button.h"
#include "ui/framework/controls/CheckBox.h"
#include "ui/framework/controls/ComboBox.h"
#include "ui/framework/controls/Edit.h"
#include "ui/framework/controls/Label.h"
#include "ui/framework/controls/ListBox.h"
#include "ui/framework/controls/Slider.h"
#include "ui/framework/layout.h"
#include "ui/framework/tool_tips.h"
#include "ui/main_window/document_pane.h"

#include <array>
#include <vector>

namespace wordhawk {

/// Window numbers of the main window's controls; those of an array follow each other.
namespace main_id {
enum : int {
    pic1 = 1000,
    pic2,
    rtbW,
    lstNID,
    lblNID,
    lblNIL,
    lblCnt,
    txtChgTo,
    cboChgTo,
    lstSug,
    lstSco,
    cboDicts,
    hsScore,
    hsdiversity,
    lblScore,
    lbldiversity,
    lblDum,
    lblDum_last = lblDum + 2,
    lblCD,
    cmdChange,
    cmdChangeAll,
    cmdIgnore,
    cmdIgnoreAll,
    cmdAdd,
    cmdAdd_last = cmdAdd + 1,
    cmdAddAll,
    cmdAddAll_last = cmdAddAll + 1,
    cmdCancel,
    cmdCopyData,
    cmdSpellcheck,
    cmdSuggestions,
    cmdOpen,
    cmdSaveAs,
    cmdOptions,
    cmdPreferences,
    lblStatus,
    cmdUndoAdd,
    lblDocumentName,
    lblRecentName,
    cmdEverywhere,
    chkEverywhere,
};
}  // namespace main_id

/// The controls of the main window, each under its name. An index of 0 in an Add pair is the main
/// dictionary, 1 the custom one; `lblDum` heads the list, the change-to box and the scores.
struct NewSpellControls {
    NewSpellControls(Clipboard& clipboard, const Theme& theme) : document(clipboard, theme) {}

    Panel pic1;
    Panel pic2;
    /// Holds rtbW.
    DocumentPane document;
    RichEdit& rtbW = document.rtbW;
    ListBox lstNID;
    Label lblNID;
    Label lblNIL;
    Label lblCnt;
    Edit txtChgTo;
    ComboBox cboChgTo;
    ListBox lstSug;
    ListBox lstSco;
    /// Fills the lists from the whole dictionary, once; the box below does so for every word.
    Button cmdEverywhere;
    CheckBox chkEverywhere;
    ComboBox cboDicts;
    Slider hsScore;
    Slider hsdiversity;
    Label lblScore;
    Label lbldiversity;
    std::array<Label, 3> lblDum;
    Label lblCD;
    Button cmdChange;
    Button cmdChangeAll;
    Button cmdIgnore;
    Button cmdIgnoreAll;
    std::array<Button, 2> cmdAdd;
    std::array<Button, 2> cmdAddAll;
    Button cmdCancel;
    Button cmdCopyData;
    Button cmdSpellcheck;
    Button cmdSuggestions;
    Button cmdOpen;
    Button cmdSaveAs;
    Button cmdOptions;
    Button cmdPreferences;
    /// What the last command did, and the way to take an added word back.
    Label lblStatus;
    Button cmdUndoAdd;
    /// Names, for screen readers, of what has no caption on the screen.
    Label lblDocumentName;
    Label lblRecentName;

    /// Makes everything in tab order: each label stands before what it names.
    void CreateAll(HWND form, ToolTips& tips);
    /// Every control that carries texts.
    std::vector<FormControl*> All();
    /// The push button with that number, null for other controls.
    Button* ButtonWithId(int id);

    /// Width that the options panel needs, in pixels.
    int OptionsWidth(const layout::Measure& measure) const;
    void ArrangeMain(const layout::Measure& measure) const;
    void ArrangeOptions(const layout::Measure& measure) const;
    /// Lets two of the command buttons change places.
    void Swap(const Button& one, const Button& other);

  private:
    layout::NodePtr OptionsLayout() const;
    void CreateMain(ToolTips& tips);
    void CreateOptions(ToolTips& tips);

    std::vector<const Control*> button_order_;
};

}  // namespace wordhawk
