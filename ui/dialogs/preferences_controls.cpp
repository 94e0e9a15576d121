#include "ui/dialogs/preferences_controls.h"

#include "lang/text_ids.h"
#include "ui/dialogs/dialog_ids.h"

namespace wordhawk {
namespace {

constexpr int kSpellingOptions[] = {8, 10, 11, 6, 7, 0, 1, 2};
constexpr int kDisplayOptions[] = {3, 4, 5, 12};
constexpr int kCheckHeight = 19;

using Group = OptionButton::Group;

}  // namespace

void PreferencesControls::CreateAll(HWND form, ToolTips& tips) {
    using namespace preferences_id;
    for (std::size_t i = 0; i < lblTab.size(); ++i) {
        const int at = static_cast<int>(i);
        lblTab[i].Create({form, preferences_id::lblTab + at, &tips},
                         i == 0 ? Group::Starts : Group::Continues);
    }
    for (std::size_t i = 0; i < fraDum.size(); ++i) {
        fraDum[i].CreateIn(form, preferences_id::fraDum + static_cast<int>(i));
    }
    CreateSpelling(tips);
    CreateDisplay(tips);
    CreateLists(tips);
    cmdOK.Create({form, IDOK, &tips});
    cmdCancel.Create({form, IDCANCEL, &tips});
    cmdOK.SetDefault(true);
}

void PreferencesControls::CreateSpelling(ToolTips& tips) {
    const HWND page = fraDum[kSpelling].Handle();
    const auto at = [&](int id) { return Control::Where{page, id, &tips}; };
    for (const int option : kSpellingOptions) {
        chkPrefs[static_cast<std::size_t>(option)].Create(at(preferences_id::chkPrefs + option));
        if (option != Preferences::kSetClip) continue;
        linTTyp[0].Create(at(preferences_id::linTTyp), Label::Kind::Value);
        optTTyp[0].Create(at(preferences_id::optTTyp), Group::Starts);
        optTTyp[1].Create(at(preferences_id::optTTyp + 1), Group::Continues);
        linTTyp[1].Create(at(preferences_id::linTTyp_last), Label::Kind::Value);
    }
    chkModern.Create(at(preferences_id::chkModern));
    for (std::size_t i = 0; i < chkWays.size(); ++i) {
        chkWays[i].Create(at(preferences_id::chkWays + static_cast<int>(i)));
    }
}

void PreferencesControls::CreateDisplay(ToolTips& tips) {
    const HWND page = fraDum[kDisplay].Handle();
    const auto at = [&](int id) { return Control::Where{page, id, &tips}; };
    for (const int option : kDisplayOptions) {
        chkPrefs[static_cast<std::size_t>(option)].Create(at(preferences_id::chkPrefs + option));
    }
    lblST.Create(at(preferences_id::lblST), Label::Kind::Caption);
    for (int i = 0; i < 3; ++i) {
        optST[static_cast<std::size_t>(i)].Create(at(preferences_id::optST + i),
                                                  i == 0 ? Group::Starts : Group::Continues);
    }
    lblSound.Create(at(preferences_id::lblSound), Label::Kind::Caption);
    lblSnd.Create(at(preferences_id::lblSnd), Label::Kind::Path);
    cmdSnd.Create(at(preferences_id::cmdSnd));
    lblLanguage.Create(at(preferences_id::lblLanguage), Label::Kind::Caption);
    lblDis[0].Create(at(preferences_id::lblDis), Label::Kind::Caption);
    cboLgs.Create(at(preferences_id::cboLgs));
    lblDis[1].Create(at(preferences_id::lblDis_last), Label::Kind::Caption);
    lblDis[1].SetVisible(false);
}

void PreferencesControls::CreateLists(ToolTips& tips) {
    const HWND delimiters = fraDum[kDelimiters].Handle();
    lblDelimiters.Create({delimiters, preferences_id::lblDelimiters}, Label::Kind::Caption);
    lstCr.Create({delimiters, preferences_id::lstCr, &tips}, CheckList::Columns::Several);
    cmdDefaults.Create({delimiters, preferences_id::cmdDefaults, &tips});
    const HWND dictionaries = fraDum[kDictionaries].Handle();
    lblDictionary.Create({dictionaries, preferences_id::lblDictionary}, Label::Kind::Caption);
    lstDicts.Create({dictionaries, preferences_id::lstDicts, &tips});
    lblDict.Create({dictionaries, preferences_id::lblDict}, Label::Kind::Value);
    lblManage.Create({dictionaries, preferences_id::lblManage}, Label::Kind::Caption);
    cmdCusDicts.Create({dictionaries, preferences_id::cmdCusDicts, &tips});
}

std::vector<FormControl*> PreferencesControls::All() {
    std::vector<FormControl*> all;
    for (TabButton& tab : lblTab) all.push_back(&tab);
    for (CheckBox& box : chkPrefs) {
        if (box.Handle() != nullptr) all.push_back(&box);
    }
    for (CheckBox& way : chkWays) all.push_back(&way);
    for (OptionButton& option : optTTyp) all.push_back(&option);
    for (OptionButton& option : optST) all.push_back(&option);
    for (Label& label : lblDis) all.push_back(&label);
    all.insert(all.end(), {&lblST, &lblSound, &lblSnd, &cmdSnd, &lblLanguage, &cboLgs,
                           &lblDelimiters, &lstCr, &cmdDefaults, &lblDictionary, &lstDicts,
                           &lblDict, &lblManage, &cmdCusDicts, &chkModern, &cmdOK, &cmdCancel});
    return all;
}

void PreferencesControls::SetTextIds() {
    using namespace text_id;
    constexpr int kOptionTexts[Preferences::kOptionCount] = {
        kCheckClipboardOnLoad, kSetClipboard,    kSaveBack,          kShowOpenAndSave, kRemainOpen,
        kOpenWithOptions,      kSuggestFromMain, kWarnBeforeMainAdd, kIgnoreWebs,      0,
        kIgnoreUpperCase,      kIgnoreNumbers,   kDisplayScoreBox,
    };
    for (std::size_t i = 0; i < chkPrefs.size(); ++i) {
        if (kOptionTexts[i] != 0) chkPrefs[i].SetTag(std::to_wstring(kOptionTexts[i]));
    }
    struct Row {
        FormControl& control;
        int caption;
        int tip;
    };
    const Row rows[] = {
        {chkModern, kModernChecking, 0},
        {chkWays[0], kWideSearchOption, 0},
        {chkWays[1], kStraightApostropheOption, 0},
        {chkWays[2], kCompoundsOption, 0},
        {chkWays[3], kLettersStayOption, 0},
        {optTTyp[0], kPlainText, 0},
        {optTTyp[1], kRichText, 0},
        {optST[0], kScore, kSearchBySound},
        {optST[1], kWords, kSearchByAny},
        {optST[2], kWordsLike, kSearchByCloseSound},
        {lblST, kSuggestionsBy, 0},
        {lblSound, kCompletionSound, 0},
        {lblSnd, 0, kTipNoSound},
        {cmdSnd, 0, kTipChooseSound},
        {lblLanguage, kLanguageInterface, 0},
        {lblDis[0], kLanguagesInstalled, 0},
        {lblDis[1], kResourceFileMissing, 0},
        {lblDelimiters, kSplitByDelimiters, 0},
        {cmdDefaults, kDefaultDelimiters, kTipDefaultDelimiters},
        {lblDictionary, kCustomDictionary, 0},
        {lblManage, kEditCustomDictionaries, 0},
    };
    for (const Row& row : rows) {
        if (row.caption != 0) row.control.SetTag(std::to_wstring(row.caption));
        if (row.tip != 0) row.control.SetToolTipText(std::to_wstring(row.tip));
    }
}

// ---- layout ----

layout::NodePtr PreferencesControls::Option(int index) const {
    return layout::Item(chkPrefs[static_cast<std::size_t>(index)], {0, kCheckHeight});
}

layout::NodePtr PreferencesControls::SpellingLayout() const {
    using namespace layout;
    std::vector<NodePtr> ways;
    for (const CheckBox& way : chkWays) ways.push_back(Item(way, {0, kCheckHeight}));
    NodePtr formats =
        Column(3, List(Item(linTTyp[0], {120, 1}),
                       Row(11, List(Item(optTTyp[0], {0, kCheckHeight}),
                                    Item(optTTyp[1], {0, kCheckHeight}), Space({0, 0}, 1))),
                       Item(linTTyp[1], {120, 1})));
    return Column(5, List(Option(8), Option(10), Option(11), Option(6), Option(7), Space({0, 4}),
                          Option(0), Option(1), Row(0, List(Space({18, 0}), std::move(formats))),
                          Option(2), Space({0, 4}), Item(chkModern, {0, kCheckHeight}),
                          Row(0, List(Space({18, 0}), Column(3, std::move(ways))))));
}

layout::NodePtr PreferencesControls::DisplayLayout() const {
    using namespace layout;
    NodePtr orders =
        Row(11, List(Item(optST[0], {0, kCheckHeight}), Item(optST[1], {0, kCheckHeight}),
                     Item(optST[2], {0, kCheckHeight}), Space({0, 0}, 1)));
    NodePtr sound =
        Row(7, List(Item(lblSnd, {220, kFieldHeight}, 1), Item(cmdSnd, {30, kFieldHeight})));
    NodePtr language =
        Row(9, List(Item(cboLgs, {180, kFieldHeight}), Text(lblDis[1]), Space({0, 0}, 1)));
    return Column(5, List(Option(3), Option(4), Option(5), Option(12), Space({0, 2}), Text(lblST),
                          std::move(orders), Space({0, 2}), Text(lblSound), std::move(sound),
                          Space({0, 2}), Text(lblLanguage), Text(lblDis[0]), std::move(language)));
}

layout::NodePtr PreferencesControls::DelimitersLayout() const {
    using namespace layout;
    return Column(5, List(Text(lblDelimiters), Item(lstCr, {400, 240}, 1),
                          Row(0, List(Space({0, 0}, 1), Item(cmdDefaults, {0, kButtonHeight})))));
}

layout::NodePtr PreferencesControls::DictionariesLayout() const {
    using namespace layout;
    return Column(5, List(Text(lblDictionary), Item(lstDicts, {300, 150}, 1),
                          Item(lblDict, {100, 17}), Space({0, 2}),
                          Row(7, List(Text(lblManage), Space({0, 0}, 1),
                                      Item(cmdCusDicts, {0, kButtonHeight})))));
}

layout::NodePtr PreferencesControls::DialogLayout() const {
    using namespace layout;
    std::vector<NodePtr> tabs;
    for (const TabButton& tab : lblTab) tabs.push_back(Item(tab, {0, 27}, 1));
    NodePtr pages = Stack(List(Frame(fraDum[kSpelling].Handle(), SpellingLayout()),
                               Frame(fraDum[kDisplay].Handle(), DisplayLayout()),
                               Frame(fraDum[kDelimiters].Handle(), DelimitersLayout()),
                               Frame(fraDum[kDictionaries].Handle(), DictionariesLayout())));
    return Margin(11, Column(9, List(Row(0, std::move(tabs)), std::move(pages),
                                     Row(7, List(Space({0, 0}, 1), Item(cmdOK, {80, kButtonHeight}),
                                                 Item(cmdCancel, {80, kButtonHeight}))))));
}

}  // namespace wordhawk
