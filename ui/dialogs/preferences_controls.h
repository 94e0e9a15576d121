#pragma once

#include "app/preferences.h"
#include "ui/framework/Panel.h"
#include "ui/framework/controls/Button.h"
#include "ui/framework/controls/CheckBox.h"
#include "ui/framework/controls/CheckList.h"
#include "ui/framework/controls/ComboBox.h"
#include "ui/framework/controls/Label.h"
#include "ui/framework/controls/ListBox.h"
#include "ui/framework/layout.h"
#include "ui/framework/tool_tips.h"

#include <array>
#include <vector>

namespace wordhawk {

/// The controls of the preferences dialog, each under its name, on the four pages fraDum that the
/// tabs lblTab choose.
struct PreferencesControls {
    enum Page { kSpelling, kDisplay, kDelimiters, kDictionaries };

    std::array<TabButton, Preferences::kTabCount> lblTab;
    std::array<Panel, Preferences::kTabCount> fraDum;

    /// By option; the one at Preferences::kNoOption is never made.
    std::array<CheckBox, Preferences::kOptionCount> chkPrefs;
    /// Plain and rich text, between two lines.
    std::array<OptionButton, 2> optTTyp;
    std::array<Label, 2> linTTyp;

    /// One for all, and below it the modern ways of checking one by one.
    CheckBox chkModern;
    std::array<CheckBox, Preferences::kModernCount> chkWays;

    std::array<OptionButton, 3> optST;
    Label lblST;
    Label lblSound;
    Label lblSnd;
    Button cmdSnd;
    Label lblLanguage;
    ComboBox cboLgs;
    /// The heading of the languages, and what tells that the chosen one's file is missing.
    std::array<Label, 2> lblDis;

    Label lblDelimiters;
    CheckList lstCr;
    Button cmdDefaults;

    Label lblDictionary;
    ListBox lstDicts;
    Label lblDict;
    Label lblManage;
    Button cmdCusDicts;

    Button cmdOK;
    Button cmdCancel;

    /// Makes everything in tab order.
    void CreateAll(HWND form, ToolTips& tips);
    /// Every control that carries texts.
    std::vector<FormControl*> All();
    /// Gives the controls the numbers of their texts.
    void SetTextIds();

    layout::NodePtr DialogLayout() const;

  private:
    void CreateSpelling(ToolTips& tips);
    void CreateDisplay(ToolTips& tips);
    void CreateLists(ToolTips& tips);
    layout::NodePtr Option(int index) const;
    layout::NodePtr SpellingLayout() const;
    layout::NodePtr DisplayLayout() const;
    layout::NodePtr DelimitersLayout() const;
    layout::NodePtr DictionariesLayout() const;
};

}  // namespace wordhawk
