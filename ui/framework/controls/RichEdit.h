#pragma once

#include "engine/session/spell_document.h"
#include "ui/framework/controls/Control.h"

#include <optional>
#include <string>

namespace wordhawk {

/// The system's rich edit control, RICHEDIT50W. Offsets count UTF-16 units; a paragraph ends in one
/// CR.
class RichEdit : public Control {
  public:
    RichEdit() : Control(L"RichTextBox") {}
    void Create(const Where& where);
    /// Puts an empty control in the old one's place. Emptying a large document instead can take
    /// minutes, as some systems unlink it paragraph by paragraph.
    void Renew();

    std::wstring PlainText() const;
    std::size_t Length() const;
    /// Replaces everything; nothing can be undone afterwards. Line ends may be of any kind.
    void SetPlainText(std::wstring_view text);

    std::string Rtf() const;
    /// Loads RTF (bytes) into an empty control, or in place of the selection as one step of undo.
    /// The caller has taken out what must not come in. False when the control read nothing.
    enum class Into { Document, Selection };
    bool SetRtf(std::string_view rtf, Into into);

    /// May reach one unit behind the last: the document's own end.
    TextRange Selection() const;
    void Select(TextRange range);
    /// Brings the selection into view, with some of the text that follows it.
    void ScrollToSelection();
    void ReplaceSelection(std::wstring_view text);
    /// Neither paints nor tells the form of changes meanwhile.
    void SetQuiet(bool quiet);

    bool CanUndo() const { return Send(EM_CANUNDO) != 0; }
    bool Undo() { return Send(EM_UNDO) != 0; }
    void ForgetUndo() { Send(EM_EMPTYUNDOBUFFER); }

    /// Face, size in points and colour of text that has none of its own; no colour: the system's.
    struct Look {
        std::wstring face;
        int half_points = 20;
        std::optional<COLORREF> text;
        COLORREF background = 0xFFFFFF;
    };
    void SetLook(const Look& look);
    void SetBackground(COLORREF colour);
    /// Sends one of the edit requests of the system (WM_CUT, EM_SETSEL ...).
    LRESULT Request(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
        return Send(message, wparam, lparam);
    }

    std::wstring Caption() const override { return {}; }
    void SetCaption(const std::wstring&) override {}

  private:
    void SetUp();

    Where where_{};
};

}  // namespace wordhawk
