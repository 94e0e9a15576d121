#include "ui/main_window/status_line.h"

namespace wordhawk {

void StatusLine::Say(const std::wstring& text, Undo undo) {
    const bool changed = controls_.lblStatus.Text() != text;
    controls_.lblStatus.SetText(text);
    offered_ = undo;
    const bool offer = undo != Undo::None;
    if (controls_.cmdUndoAdd.Visible() != offer) {
        controls_.cmdUndoAdd.SetVisible(offer);
        arrange_();
    }
    if (changed && !text.empty()) {
        NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, controls_.lblStatus.Handle(), OBJID_WINDOW,
                       CHILDID_SELF);
    }
}

}  // namespace wordhawk
