#include "ui/main_window/main_captions.h"

#include "engine/session/captions.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"

namespace wordhawk {

using modLoadRes::LoadCaption;
using modLoadRes::LoadResText;

void SetTextIds(NewSpellControls& c, MainMenus& menus) {
    struct Row {
        FormControl& control;
        int caption;  ///< 0: none, or composed elsewhere
        int tip;      ///< 0: none
    };
    using namespace text_id;
    const Row rows[] = {
        {c.cmdChange, 0, kTipChange},
        {c.cmdChangeAll, kChangeAll, kTipChangeAll},
        {c.cmdIgnore, 0, kTipIgnore},
        {c.cmdIgnoreAll, kIgnoreAll, kTipIgnoreAll},
        {c.cmdAdd[0], 0, kTipAddMain},
        {c.cmdAdd[1], kCust, kTipAddCustom},
        {c.cmdAddAll[0], kAddAll, kTipAddAllMain},
        {c.cmdAddAll[1], kAddAll, kTipAddAllCustom},
        {c.cmdCancel, kCancel, kTipCancel},
        {c.cmdCopyData, kCopyData, kTipCopyData},
        {c.cmdSpellcheck, kSpellCheck, kTipSpellCheck},
        {c.cmdSuggestions, 0, kTipSuggestions},
        {c.cmdOpen, 0, kTipOpen},
        {c.cmdSaveAs, 0, kTipSaveAs},
        {c.cmdOptions, 0, kTipOptions},
        {c.cmdPreferences, 0, kTipPreferences},
        {c.cmdUndoAdd, kUndo, kTipUndoAdd},
        {c.cmdEverywhere, kSearchEverywhere, kTipSearchEverywhere},
        {c.chkEverywhere, kAlwaysEverywhere, kTipAlwaysEverywhere},
        {c.lblNID, 0, kTipWord},
        {c.lstNID, 0, kTipNotFound},
        {c.hsScore, 0, kTipScore},
        {c.hsdiversity, 0, kTipDiversity},
        {c.cboDicts, 0, kTipCustomDictionaries},
        {c.cboChgTo, 0, kRecentChanges},
        {c.lblDocumentName, kDocument, 0},
        {c.lblRecentName, kRecentChanges, 0},
    };
    for (const Row& row : rows) {
        if (row.caption != 0) row.control.SetTag(std::to_wstring(row.caption));
        if (row.tip != 0) row.control.SetToolTipText(std::to_wstring(row.tip));
    }
    menus.SetTextIds();
}

void SetComposedCaptions(const ProgramState& state, NewSpellControls& c) {
    using namespace text_id;
    c.lblScore.SetText(captions::ScoreRange(state, 80));
    c.lblDum[0].SetText(LoadResText(state, kNotInDictionary));
    c.lblDum[1].SetText(LoadResText(state, kChangeTo));
    c.lblDum[2].SetText(LoadResText(state, kScore, {}, L" %"));
    c.lblCD.SetText(LoadResText(state, kCustomDictionaries));
    c.lblNIL.SetText(captions::NothingFoundYet(state));
    c.lblCnt.SetText(captions::NoSuggestionsYet(state));
    c.cmdPreferences.SetText(LoadCaption(state, kPreferences));
    c.cmdChange.SetText(LoadCaption(state, kChange));
    c.cmdIgnore.SetText(LoadCaption(state, kIgnore));
    c.cmdSuggestions.SetText(LoadCaption(state, kSuggestions));
    c.cmdOpen.SetText(LoadResText(state, kOpen));
    c.cmdSaveAs.SetText(LoadResText(state, kSaveAs));
    c.cmdOptions.SetText(LoadCaption(state, kOptions));
    c.cmdAdd[0].SetText(LoadCaption(state, kAdd));
}

}  // namespace wordhawk
