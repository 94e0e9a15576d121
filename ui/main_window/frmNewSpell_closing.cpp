// How the main window closes: what is saved, handed back and kept.
#include "lang/apply_language.h"
#include "lang/text_ids.h"
#include "ui/main_window/frmNewSpell.h"

namespace wordhawk {

void frmNewSpell::Unload() {
    if (handle_ == nullptr) return;
    if (running_ != nullptr) {
        // What runs still works on this window; it ends first.
        close_when_done_ = true;
        running_->Cancel();
        return;
    }
    if (!Form_QueryUnload()) return;
    check_.Closing();
    if (handle_ == nullptr) return;
    Form_Unload();
    Close(0);
    if (on_unloaded) on_unloaded();
}

bool frmNewSpell::Form_QueryUnload() {
    using Questions = DocumentFiles::Questions;
    commands_.recent.SaveRecentChanges(program_.state.SettingsProfile());
    const bool failed_before = save_back_failed_;
    // In another file, or, if the user did not want it written, among the unsaved texts.
    const bool goes_elsewhere = files_.Declined() || (failed_before && !document.HasUnsavedText());
    const auto questions = session_ends_ ? Questions::AnsweredNo : Questions::Asked;
    if (!goes_elsewhere && !files_.SaveBack(questions) && !session_ends_) {
        // Once, the window stays, so that the text can be saved elsewhere.
        save_back_failed_ = true;
        OfferSaveAs();
        if (!failed_before) return false;
    }
    // A check that is cut short ends here, and its text is handed back.
    if (!session_ends_ && !commands_.session.Words().empty()) files_.SetClipboard();
    return true;
}

void frmNewSpell::OfferSaveAs() {
    save_as_offered_ = true;
    cmdSaveAs.SetVisible(true);
    cmdSaveAs.SetEnabled(true);
    Form_Resize();
}

void frmNewSpell::Form_Unload() {
    files_.KeepUnsaved();
    geometry_.Save(handle_, MeasureNow());
    suggestions_.SaveSliders();
    menus_.mnuCustD.RemoveFrom(1);
    // What another copy of the program put on the list meanwhile stays there.
    modRegs::MergeCustomDictionaryList(program_.state, cboDicts.Texts(),
                                       program_.settings.CustomDictionaries);
    if (shared_.instance == this) shared_.instance = nullptr;
    word_pointer_.Remove();
    ClearFormTexts(*this);
}

bool frmNewSpell::OnClose() {
    Unload();
    return true;
}

}  // namespace wordhawk
