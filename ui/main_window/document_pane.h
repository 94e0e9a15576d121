#pragma once

#include "engine/document/document_text.h"
#include "engine/session/spell_document.h"
#include "platform/clipboard.h"
#include "platform/result.h"
#include "ui/framework/controls/RichEdit.h"
#include "ui/framework/subclass.h"
#include "ui/framework/theme.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace wordhawk {

/// The document: the rich text box with what the rest of the window needs of it. Keeps the text
/// beside the control, so that commands never fetch or search the control's own; takes a Change All
/// back in one step; and lets neither pictures nor objects in.
class DocumentPane : public SpellDocument {
  public:
    DocumentPane(Clipboard& clipboard, const Theme& theme);

    void Create(const Control::Where& where);
    RichEdit rtbW;
    /// Called when a fresh control has taken the place of rtbW's old one.
    std::function<void(HWND)> on_renewed;

    // SpellDocument
    const std::wstring& Text() override;
    std::uint64_t Revision() const override { return revision_; }
    TextRange Selection() override;
    void Select(TextRange range) override;
    void ReplaceSelection(std::wstring_view text) override;
    void ReplaceAll(std::span<const std::size_t> starts, std::size_t length,
                    std::wstring_view text) override;

    std::wstring SelectedText();
    bool Empty() { return rtbW.Length() == 0; }
    /// The control said that its text changed.
    void OnChanged();

    /// Whether everything of what was loaded is in the document.
    enum class Loaded { Whole, InPart };
    /// Replaces the document.
    void LoadPlainText(DocumentText document);
    Loaded LoadRichText(std::string_view rtf);
    /// The document as plain text in the encoding that it came in, each line with the end that it
    /// had there.
    std::string PlainBytes(const AnsiCodePage& page);
    /// Empty when there is not enough memory.
    std::string RichText();
    /// Called before rich text is put into the system's rich text box while there is something to
    /// lose in it.
    std::function<void()> before_rich_text;
    /// Whether the text differs from what was loaded or saved last, be it that it is gone.
    bool Changed() const { return revision_ != saved_revision_; }
    bool HasUnsavedText() { return Changed() && !Empty(); }
    /// The text is safe elsewhere, as it is now.
    void MarkSaved() { saved_revision_ = revision_; }
    void MarkUnsaved() { saved_revision_ = 0; }
    /// Whether the text came in as rich text.
    bool IsRich() const { return rich_; }

    /// Dress in the theme's colours. A rich text keeps its paper: its colours are its own.
    void ApplyTheme();
    /// The default font, to which every plain text is set back as it is loaded.
    void SetLook(std::wstring face, int half_points);

    bool CanUndo() const { return rtbW.CanUndo(); }
    void Undo();
    void Paste();

  private:
    struct Fingerprint {
        std::size_t length;
        std::size_t hash;
        bool operator==(const Fingerprint&) const = default;
    };
    /// Many steps of the control's undo that are one for the user.
    struct Group {
        Fingerprint before;
        Fingerprint after;
        std::size_t steps;
    };

    Fingerprint FingerprintOfText();
    std::optional<LRESULT> Filter(UINT message, WPARAM wparam, LPARAM lparam);
    void Renew();
    void InstallFilter();

    Clipboard& clipboard_;
    const Theme& theme_;
    Subclass subclass_;
    RichEdit::Look look_;
    std::wstring text_;
    bool text_is_current_ = false;
    std::uint64_t revision_ = 1;
    std::uint64_t saved_revision_ = 1;
    int own_edits_ = 0;
    bool undoing_ = false;
    bool rich_ = false;
    TextEncoding encoding_ = TextEncoding::Utf8;
    LineEndMemory line_ends_;
    std::vector<Group> groups_;
};

}  // namespace wordhawk
