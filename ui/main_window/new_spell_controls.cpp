#include "ui/main_window/new_spell_controls.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr int kHighestScore = 100;
constexpr int kHighestDiversity = 10;
/// Width of the main panel, in units of 1/96 inch, from which on it is arranged side by side.
constexpr int kWide = 820;
constexpr int kCheckHeight = 19;
/// What a check box needs beside its text.
constexpr int kBoxWidth = 24;

}  // namespace

void NewSpellControls::CreateAll(HWND form, ToolTips& tips) {
    pic1.CreateIn(form, main_id::pic1);
    pic2.CreateIn(form, main_id::pic2);
    CreateMain(tips);
    CreateOptions(tips);
    ShowWindow(pic1.Handle(), SW_SHOW);
    button_order_ = {&cmdChange,      &cmdChangeAll,  &cmdIgnore,  &cmdIgnoreAll,
                     &cmdAdd[0],      &cmdAddAll[0],  &cmdAdd[1],  &cmdAddAll[1],
                     &cmdSuggestions, &cmdSpellcheck, &cmdOptions, &cmdCancel};
}

void NewSpellControls::CreateMain(ToolTips& tips) {
    const HWND panel = pic1.Handle();
    const auto at = [&](int id) { return Control::Where{panel, id, &tips}; };
    lblDocumentName.Create(at(main_id::lblDocumentName), Label::Kind::Hidden);
    document.Create(at(main_id::rtbW));
    lblNID.Create(at(main_id::lblNID), Label::Kind::Value);
    lblDum[0].Create(at(main_id::lblDum), Label::Kind::Caption);
    lstNID.Create(at(main_id::lstNID));
    lblNIL.Create(at(main_id::lblNIL), Label::Kind::Value);
    lblDum[1].Create(at(main_id::lblDum + 1), Label::Kind::Caption);
    txtChgTo.Create(at(main_id::txtChgTo));
    lblRecentName.Create(at(main_id::lblRecentName), Label::Kind::Hidden);
    cboChgTo.Create(at(main_id::cboChgTo));
    lblCnt.Create(at(main_id::lblCnt), Label::Kind::Caption);
    lstSug.Create(at(main_id::lstSug));
    lblDum[2].Create(at(main_id::lblDum + 2), Label::Kind::Caption);
    lstSco.Create(at(main_id::lstSco));
    cmdEverywhere.Create(at(main_id::cmdEverywhere));
    cmdChange.Create(at(main_id::cmdChange));
    cmdChangeAll.Create(at(main_id::cmdChangeAll));
    cmdIgnore.Create(at(main_id::cmdIgnore));
    cmdIgnoreAll.Create(at(main_id::cmdIgnoreAll));
    for (int i = 0; i < 2; ++i) {
        cmdAdd[static_cast<std::size_t>(i)].Create(at(main_id::cmdAdd + i));
        cmdAddAll[static_cast<std::size_t>(i)].Create(at(main_id::cmdAddAll + i));
    }
    cmdSuggestions.Create(at(main_id::cmdSuggestions));
    cmdSpellcheck.Create(at(main_id::cmdSpellcheck));
    cmdOptions.Create(at(main_id::cmdOptions));
    cmdCancel.Create(at(main_id::cmdCancel));
    lblStatus.Create(at(main_id::lblStatus), Label::Kind::Value);
    cmdUndoAdd.Create(at(main_id::cmdUndoAdd));
    cmdUndoAdd.SetVisible(false);
    cmdChange.SetDefault(true);
}

void NewSpellControls::CreateOptions(ToolTips& tips) {
    const HWND panel = pic2.Handle();
    const auto at = [&](int id) { return Control::Where{panel, id, &tips}; };
    lblScore.Create(at(main_id::lblScore), Label::Kind::Caption);
    hsScore.Create(at(main_id::hsScore), 0, kHighestScore);
    lbldiversity.Create(at(main_id::lbldiversity), Label::Kind::Caption);
    hsdiversity.Create(at(main_id::hsdiversity), 0, kHighestDiversity);
    chkEverywhere.Create(at(main_id::chkEverywhere));
    lblCD.Create(at(main_id::lblCD), Label::Kind::Caption);
    cboDicts.Create(at(main_id::cboDicts));
    cmdOpen.Create(at(main_id::cmdOpen));
    cmdSaveAs.Create(at(main_id::cmdSaveAs));
    cmdPreferences.Create(at(main_id::cmdPreferences));
    cmdCopyData.Create(at(main_id::cmdCopyData));
}

std::vector<FormControl*> NewSpellControls::All() {
    return {&rtbW,         &lstNID,          &lblNID,        &lblNIL,         &lblCnt,
            &txtChgTo,     &cboChgTo,        &lstSug,        &lstSco,         &cboDicts,
            &hsScore,      &hsdiversity,     &lblScore,      &lbldiversity,   &lblDum[0],
            &lblDum[1],    &lblDum[2],       &lblCD,         &cmdChange,      &cmdChangeAll,
            &cmdIgnore,    &cmdIgnoreAll,    &cmdAdd[0],     &cmdAdd[1],      &cmdAddAll[0],
            &cmdAddAll[1], &cmdCancel,       &cmdCopyData,   &cmdSpellcheck,  &cmdSuggestions,
            &cmdOpen,      &cmdSaveAs,       &cmdOptions,    &cmdPreferences, &lblStatus,
            &cmdUndoAdd,   &lblDocumentName, &lblRecentName, &cmdEverywhere,  &chkEverywhere};
}

Button* NewSpellControls::ButtonWithId(int id) {
    for (FormControl* control : All()) {
        auto* button = dynamic_cast<Button*>(control);
        if (button != nullptr && button->Id() == id) return button;
    }
    return nullptr;
}

layout::NodePtr NewSpellControls::OptionsLayout() const {
    using namespace layout;
    constexpr int kWidth = 150;
    const Size button{kWidth, kButtonHeight};
    return Margin(
        11, Column(7, List(Column(2, List(Text(lblScore), Item(hsScore, {kWidth, 26}))),
                           Column(2, List(Text(lbldiversity), Item(hsdiversity, {kWidth, 26}))),
                           Item(chkEverywhere, {kWidth, kCheckHeight}),
                           Column(4, List(Text(lblCD), Item(cboDicts, {kWidth, kFieldHeight}))),
                           Space({0, 4}), Item(cmdOpen, button), Item(cmdSaveAs, button),
                           Item(cmdPreferences, button), Item(cmdCopyData, button))));
}

int NewSpellControls::OptionsWidth(const layout::Measure& measure) const {
    // The captions of the panel set its width in every language, even while it is hidden.
    const int box = measure.Scaled(kBoxWidth);
    int widest = std::max(measure.Scaled(150),
                          static_cast<int>(measure.TextSize(chkEverywhere.Text()).cx) + box);
    for (const Control* control :
         std::initializer_list<const Control*>{&lblScore, &lbldiversity, &lblCD, &cmdOpen,
                                               &cmdSaveAs, &cmdPreferences, &cmdCopyData}) {
        widest = std::max(widest, static_cast<int>(measure.TextSize(control->Text()).cx));
    }
    return widest + 2 * measure.Scaled(11);
}

void NewSpellControls::ArrangeOptions(const layout::Measure& measure) const {
    RECT area{};
    GetClientRect(pic2.Handle(), &area);
    Arrange(*OptionsLayout(), area, measure);
}

void NewSpellControls::ArrangeMain(const layout::Measure& measure) const {
    using namespace layout;
    // Wide enough for a score, and for the word for it in every language.
    const int heading = static_cast<int>(measure.TextSize(lblDum[2].Text()).cx);
    const int scores = std::max(62, MulDiv(heading, 96, measure.dpi) + 2);
    NodePtr words = Column(4,
                           List(Text(lblDum[0]), Item(lblNID, {60, kFieldHeight}),
                                Item(lstNID, {80, 60}, 1), Text(lblNIL)),
                           5);
    NodePtr suggestions =
        Column(4,
               List(Text(lblDum[1]),
                    Row(4, List(Item(txtChgTo, {60, kFieldHeight}, 1),
                                Item(cboChgTo, {46, kFieldHeight}, 0, Fill::Centred))),
                    Row(4, List(Item(lstSug, {60, 60}, 1), Item(lstSco, {scores, 60}, 0)), 1),
                    Item(cmdEverywhere, {60, kButtonHeight - 2}),
                    Row(4, List(Text(lblCnt, 1), Item(lblDum[2], {scores, 0}, 0, Fill::Centred)))),
               6);
    NodePtr lists = Row(9, List(std::move(words), std::move(suggestions)), 4);
    NodePtr buttons = Buttons(5, 4, button_order_);
    // As high without its button as with it, so that nothing moves when the button comes.
    NodePtr status = Row(5, List(Item(lblStatus, {40, kButtonHeight - 2}, 1),
                                 Item(cmdUndoAdd, {0, kButtonHeight - 2})));
    RECT area{};
    GetClientRect(pic1.Handle(), &area);
    NodePtr body;
    if (area.right < measure.Scaled(kWide)) {
        body = Column(7, List(Item(document.rtbW, {100, 70}, 5), std::move(lists),
                              std::move(buttons), std::move(status)));
    } else {
        // A wide window has the document beside the words, not lines of a yard above them.
        body = Column(7, List(Row(11,
                                  List(Item(document.rtbW, {100, 70}, 5),
                                       Column(7, List(std::move(lists), std::move(buttons)), 4)),
                                  1),
                              std::move(status)));
    }
    Arrange(*Margin(11, std::move(body)), area, measure);
}

void NewSpellControls::Swap(const Button& one, const Button& other) {
    const auto first = std::find(button_order_.begin(), button_order_.end(), &one);
    const auto second = std::find(button_order_.begin(), button_order_.end(), &other);
    if (first != button_order_.end() && second != button_order_.end())
        std::iter_swap(first, second);
}

}  // namespace wordhawk
