#include "ui/main_window/document_pane.h"

#include "engine/document/rtf_rewrite.h"
#include "engine/document/rtf_text.h"
#include "ui/main_window/screen_colour.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace wordhawk {
namespace {

/// Steps of undo tried beyond those of a group, in case the user's own edits since then happen to
/// have come back to the text that the group left.
constexpr int kStepsBeyond = 64;

/// A stretch of time in which the control's news are our own doing.
class OwnEdit {
  public:
    explicit OwnEdit(int& depth) : depth_(depth) { ++depth_; }
    ~OwnEdit() { --depth_; }
    OwnEdit(const OwnEdit&) = delete;
    OwnEdit& operator=(const OwnEdit&) = delete;

  private:
    int& depth_;
};

bool IsUndoKey(UINT message, WPARAM key) {
    const bool control = GetKeyState(VK_CONTROL) < 0;
    const bool alt = GetKeyState(VK_MENU) < 0;
    return (message == WM_KEYDOWN && key == 'Z' && control && !alt) ||
           (message == WM_SYSKEYDOWN && key == VK_BACK && alt);
}

bool IsPasteKey(UINT message, WPARAM key) {
    const bool control = GetKeyState(VK_CONTROL) < 0;
    const bool shift = GetKeyState(VK_SHIFT) < 0;
    if (message != WM_KEYDOWN || GetKeyState(VK_MENU) < 0) return false;
    return (key == 'V' && control) || (key == VK_INSERT && shift && !control);
}

}  // namespace

DocumentPane::DocumentPane(Clipboard& clipboard, const Theme& theme)
    : clipboard_(clipboard), theme_(theme) {}

void DocumentPane::Create(const Control::Where& where) {
    rtbW.Create(where);
    InstallFilter();
}

void DocumentPane::InstallFilter() {
    subclass_.Install(rtbW.Handle(), [this](UINT message, WPARAM wparam, LPARAM lparam) {
        return Filter(message, wparam, lparam);
    });
}

std::optional<LRESULT> DocumentPane::Filter(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_GETDLGCODE: {
            // Tab leads out of the document, Ctrl+Tab types one. Never asked itself, the control
            // does not think that it stands in a dialog, where Esc would close its parent.
            const auto* key = reinterpret_cast<const MSG*>(lparam);
            const bool leaves = key != nullptr && key->message == WM_KEYDOWN &&
                                key->wParam == VK_TAB && GetKeyState(VK_CONTROL) >= 0;
            return DLGC_WANTCHARS | DLGC_WANTARROWS | (leaves ? 0 : DLGC_WANTALLKEYS);
        }
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (IsUndoKey(message, wparam)) {
                Undo();
                return 0;
            }
            if (IsPasteKey(message, wparam)) {
                Paste();
                return 0;
            }
            return {};
        case EM_UNDO:
        case WM_UNDO:
            if (undoing_) return {};
            Undo();
            return TRUE;
        case WM_PASTE: Paste(); return 0;
        case WM_RBUTTONDOWN:
            // The menu that follows works on the active control.
            rtbW.SetFocus();
            return {};
        case WM_RBUTTONUP: {
            POINT screen{static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))};
            ClientToScreen(rtbW.Handle(), &screen);
            SendMessageW(GetParent(rtbW.Handle()), WM_CONTEXTMENU,
                         reinterpret_cast<WPARAM>(rtbW.Handle()), MAKELPARAM(screen.x, screen.y));
            return 0;
        }
        default: return {};
    }
}

const std::wstring& DocumentPane::Text() {
    if (!text_is_current_) {
        text_ = rtbW.PlainText();
        text_is_current_ = true;
    }
    return text_;
}

void DocumentPane::OnChanged() {
    if (own_edits_ > 0) return;
    text_is_current_ = false;
    ++revision_;
}

TextRange DocumentPane::Selection() {
    TextRange range = rtbW.Selection();
    const std::size_t size = Text().size();
    range.start = std::min(range.start, size);
    range.length = std::min(range.length, size - range.start);
    return range;
}

std::wstring DocumentPane::SelectedText() {
    const TextRange range = Selection();
    return Text().substr(range.start, range.length);
}

void DocumentPane::Select(TextRange range) {
    rtbW.Select(range);
    rtbW.ScrollToSelection();
}

void DocumentPane::ReplaceSelection(std::wstring_view text) {
    const TextRange range = Selection();
    {
        const OwnEdit own(own_edits_);
        rtbW.ReplaceSelection(text);
    }
    text_.replace(range.start, range.length, text);
    ++revision_;
    // What the control made of it counts, should it be something else.
    text_is_current_ = rtbW.Length() == text_.size();
}

void DocumentPane::ReplaceAll(std::span<const std::size_t> starts, std::size_t length,
                              std::wstring_view text) {
    if (starts.empty()) return;
    // A single step needs no grouping, and so no look over the whole text.
    const bool grouped = starts.size() > 1;
    const Fingerprint before = grouped ? FingerprintOfText() : Fingerprint{};
    const std::wstring& old_text = Text();
    std::wstring result;
    result.reserve(old_text.size() + starts.size() * text.size());
    std::size_t from = 0;
    for (const std::size_t start : starts) {
        result.append(old_text, from, start - from).append(text);
        from = start + length;
    }
    result.append(old_text, from, std::wstring::npos);
    {
        const OwnEdit own(own_edits_);
        rtbW.SetQuiet(true);
        // From the end, so that the offsets before stay what they are.
        for (auto start = starts.rbegin(); start != starts.rend(); ++start) {
            rtbW.Select({*start, length});
            rtbW.ReplaceSelection(text);
        }
        rtbW.SetQuiet(false);
    }
    text_ = std::move(result);
    ++revision_;
    text_is_current_ = rtbW.Length() == text_.size();
    if (grouped) groups_.push_back({before, FingerprintOfText(), starts.size()});
}

DocumentPane::Fingerprint DocumentPane::FingerprintOfText() {
    const std::wstring& text = Text();
    return {text.size(), std::hash<std::wstring_view>()(text)};
}

void DocumentPane::Undo() {
    if (undoing_) return;
    undoing_ = true;
    if (!groups_.empty() && FingerprintOfText() == groups_.back().after) {
        const Group group = groups_.back();
        groups_.pop_back();
        rtbW.SetQuiet(true);
        for (std::size_t step = 0; step < group.steps && rtbW.Undo(); ++step) {
        }
        OnChanged();
        for (int step = 0; step < kStepsBeyond && FingerprintOfText() != group.before; ++step) {
            if (!rtbW.CanUndo() || !rtbW.Undo()) break;
            OnChanged();
        }
        rtbW.SetQuiet(false);
        rtbW.ScrollToSelection();
    } else {
        rtbW.Undo();
    }
    undoing_ = false;
    OnChanged();
}

void DocumentPane::Paste() {
    // Rich before plain, and never the control's own way, which would let objects in.
    if (const auto rtf = clipboard_.HasRichText() ? clipboard_.RichText() : std::nullopt) {
        if (LooksLikeRtf(*rtf)) {
            if (before_rich_text) before_rich_text();
            const std::string rewritten = RewriteRtf(*rtf, look_.face).rtf;
            if (rtbW.SetRtf(rewritten, RichEdit::Into::Selection)) return;
        }
    }
    if (const auto text = clipboard_.PlainText()) rtbW.ReplaceSelection(*text);
}

void DocumentPane::Renew() {
    subclass_.Remove();
    {
        const OwnEdit own(own_edits_);
        rtbW.Renew();
    }
    if (on_renewed) on_renewed(rtbW.Handle());
    InstallFilter();
    groups_.clear();
    text_.clear();
    text_is_current_ = false;
    ++revision_;
}

void DocumentPane::SetLook(std::wstring face, int half_points) {
    look_.face = std::move(face);
    look_.half_points = half_points;
    ApplyTheme();
}

void DocumentPane::ApplyTheme() {
    const bool paper = rich_ && theme_.Current() != Theme::Kind::HighContrast;
    look_.background = paper ? RGB(255, 255, 255) : theme_.Use().field;
    look_.text = std::nullopt;
    if (!paper && theme_.Dark()) look_.text = theme_.Use().field_text;
    const OwnEdit own(own_edits_);
    const bool could_undo = CanUndo();
    if (rich_) {
        rtbW.SetBackground(look_.background);
    } else {
        rtbW.SetLook(look_);
    }
    // To the control a colour is an edit.
    if (!could_undo) rtbW.ForgetUndo();
}

void DocumentPane::LoadPlainText(DocumentText document) {
    Renew();
    rich_ = false;
    encoding_ = document.encoding;
    line_ends_ = LineEndMemory(document.text);
    if (!line_ends_.Mixed()) line_ends_ = LineEndMemory(document.line_ends);
    ApplyTheme();
    // One paragraph for each line, whatever the system makes of mixed line ends.
    rtbW.SetPlainText(WithLineEnds(document.text, LineEnds::Cr));
    OnChanged();
    MarkSaved();
}

DocumentPane::Loaded DocumentPane::LoadRichText(std::string_view rtf) {
    const RewrittenRtf rewritten = RewriteRtf(rtf, look_.face);
    Renew();
    rich_ = true;
    encoding_ = TextEncoding::Utf8;
    line_ends_ = {};
    // Plain: else the box may take its default format from what comes in first.
    RichEdit::Look plain = look_;
    plain.text = std::nullopt;
    rtbW.SetLook(plain);
    ApplyTheme();
    rtbW.SetRtf(rewritten.rtf, RichEdit::Into::Document);
    OnChanged();
    MarkSaved();
    return rewritten.dropped ? Loaded::InPart : Loaded::Whole;
}

std::string DocumentPane::PlainBytes(const AnsiCodePage& page) {
    return EncodeText(line_ends_.Restore(Text()), encoding_, page);
}

std::string DocumentPane::RichText() {
    std::string rtf = rtbW.Rtf();
    if (rich_ || !look_.text) return rtf;
    return RtfWithAutomaticColour(rtf, GetRValue(*look_.text), GetGValue(*look_.text),
                                  GetBValue(*look_.text));
}

}  // namespace wordhawk
