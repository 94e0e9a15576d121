#include "ui/framework/controls/RichEdit.h"

#include "platform/win32/system_library.h"

#include <richedit.h>

#include <algorithm>
#include <cstring>

namespace wordhawk {
namespace {

constexpr UINT kUtf16 = 1200;
/// Steps of undo: a Change All makes one for every occurrence.
constexpr WPARAM kUndoSteps = 1'000'000;

DWORD CALLBACK ReadSome(DWORD_PTR rest_address, LPBYTE buffer, LONG wanted, LONG* read) {
    auto& rest = *reinterpret_cast<std::string_view*>(rest_address);
    const std::size_t count = std::min(rest.size(), static_cast<std::size_t>(wanted));
    std::memcpy(buffer, rest.data(), count);
    rest.remove_prefix(count);
    *read = static_cast<LONG>(count);
    return 0;
}

DWORD CALLBACK WriteSome(DWORD_PTR out_address, LPBYTE buffer, LONG count, LONG* written) {
    try {
        reinterpret_cast<std::string*>(out_address)
            ->append(reinterpret_cast<const char*>(buffer), static_cast<std::size_t>(count));
        *written = count;
        return 0;
    } catch (...) {
        return 1;
    }
}

CHARFORMAT2W EmptyFormat() {
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    return format;
}

}  // namespace

void RichEdit::Create(const Where& where) {
    // For the life of the process: windows of its class outlive this object.
    static const HMODULE library = LoadSystemLibrary(L"msftedit.dll");
    static_cast<void>(library);
    where_ = where;
    // No drag and drop of objects: files dropped here go to the form, objects nowhere. The scroll
    // bar is always there: one that came with a long text would have the whole of it laid out
    // again.
    Make(where, MSFTEDIT_CLASS,
         WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL | ES_WANTRETURN |
             ES_NOOLEDRAGDROP | ES_DISABLENOSCROLL | WS_BORDER);
    SetUp();
}

void RichEdit::SetUp() {
    Send(EM_EXLIMITTEXT, 0, 0x7FFFFFFE);
    Send(EM_SETUNDOLIMIT, kUndoSteps);
    Send(EM_SETEVENTMASK, 0, ENM_CHANGE);
    // A wide left edge puts the caret and the selection clear of the frame.
    Send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(4, 4));
}

void RichEdit::Renew() {
    const HWND old = handle_;
    const bool had_focus = HasFocus();
    const RECT bounds = Bounds();
    Make(where_, MSFTEDIT_CLASS, static_cast<DWORD>(GetWindowLongPtrW(old, GWL_STYLE)),
         static_cast<DWORD>(GetWindowLongPtrW(old, GWL_EXSTYLE)));
    // Behind the old one: the place in tab order.
    SetWindowPos(handle_, old, bounds.left, bounds.top, bounds.right - bounds.left,
                 bounds.bottom - bounds.top, SWP_NOACTIVATE);
    SetUp();
    if (had_focus) SetFocus();
    DestroyWindow(old);
}

std::size_t RichEdit::Length() const {
    GETTEXTLENGTHEX wanted{GTL_NUMCHARS | GTL_PRECISE, kUtf16};
    const LRESULT length = Send(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&wanted));
    return length > 0 ? static_cast<std::size_t>(length) : 0;
}

std::wstring RichEdit::PlainText() const {
    std::wstring text(Length() + 1, L'\0');
    GETTEXTEX wanted{static_cast<DWORD>(text.size() * sizeof(wchar_t)), GT_DEFAULT, kUtf16, nullptr,
                     nullptr};
    const LRESULT got = Send(EM_GETTEXTEX, reinterpret_cast<WPARAM>(&wanted),
                             reinterpret_cast<LPARAM>(text.data()));
    text.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return text;
}

void RichEdit::SetPlainText(std::wstring_view text) {
    // The control asks for the text in pieces, and would take a CR LF that is cut in two for two
    // line breaks.
    std::wstring whole;
    whole.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool is_second_half = text[i] == L'\n' && i > 0 && text[i - 1] == L'\r';
        if (!is_second_half) whole += text[i];
    }
    // Streamed in, a text that begins like rich text or holds a NUL is still only a text.
    std::string_view rest(reinterpret_cast<const char*>(whole.data()),
                          whole.size() * sizeof(wchar_t));
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rest), 0, ReadSome};
    Send(EM_STREAMIN, SF_TEXT | SF_UNICODE, reinterpret_cast<LPARAM>(&stream));
    ForgetUndo();
    Select({0, 0});
}

std::string RichEdit::Rtf() const {
    std::string rtf;
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rtf), 0, WriteSome};
    Send(EM_STREAMOUT, SF_RTF, reinterpret_cast<LPARAM>(&stream));
    return stream.dwError == 0 ? rtf : std::string();
}

bool RichEdit::SetRtf(std::string_view rtf, Into into) {
    std::string_view rest = rtf;
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rest), 0, ReadSome};
    Send(EM_STREAMIN, into == Into::Selection ? SF_RTF | SFF_SELECTION : SF_RTF,
         reinterpret_cast<LPARAM>(&stream));
    if (into == Into::Document) {
        ForgetUndo();
        Select({0, 0});
    }
    return stream.dwError == 0;
}

TextRange RichEdit::Selection() const {
    CHARRANGE range{};
    Send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    return {static_cast<std::size_t>(range.cpMin),
            static_cast<std::size_t>(range.cpMax - range.cpMin)};
}

void RichEdit::Select(TextRange wanted) {
    CHARRANGE range{static_cast<LONG>(wanted.start),
                    static_cast<LONG>(wanted.start + wanted.length)};
    Send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

void RichEdit::ScrollToSelection() {
    Send(EM_SCROLLCARET);
    RECT client{};
    GetClientRect(handle_, &client);
    const auto start = static_cast<LPARAM>(Selection().start);
    POINTL place{};
    Send(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&place), start);
    if (place.y <= 0 || place.y < client.bottom * 2 / 3) return;
    // From the last lines up to about a third of the height; lines differ in height, so roughly.
    const LRESULT lines_above = Send(EM_EXLINEFROMCHAR, 0, start) - Send(EM_GETFIRSTVISIBLELINE);
    const LRESULT lines = lines_above * (place.y - client.bottom / 3) / place.y;
    Send(EM_LINESCROLL, 0, static_cast<LPARAM>(lines));
}

void RichEdit::ReplaceSelection(std::wstring_view text) {
    const std::wstring value(text);
    Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(value.c_str()));
}

void RichEdit::SetQuiet(bool quiet) {
    Send(EM_SETEVENTMASK, 0, quiet ? 0 : ENM_CHANGE);
    // A selection that shows is scrolled to at every step.
    Send(EM_SETOPTIONS, quiet ? ECOOP_AND : ECOOP_OR, quiet ? ~ECO_NOHIDESEL : ECO_NOHIDESEL);
    Send(WM_SETREDRAW, !quiet);
    if (!quiet) Redraw();
}

void RichEdit::SetLook(const Look& look) {
    CHARFORMAT2W format = EmptyFormat();
    format.dwMask = CFM_FACE | CFM_SIZE | CFM_COLOR | CFM_CHARSET | CFM_BOLD | CFM_ITALIC;
    format.bCharSet = DEFAULT_CHARSET;
    format.yHeight = look.half_points * 10;
    format.dwEffects = look.text ? 0 : CFE_AUTOCOLOR;
    format.crTextColor = look.text.value_or(0);
    look.face.copy(format.szFaceName, LF_FACESIZE - 1);
    Send(EM_SETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&format));
    Send(EM_SETCHARFORMAT, SCF_DEFAULT, reinterpret_cast<LPARAM>(&format));
    SetBackground(look.background);
}

void RichEdit::SetBackground(COLORREF colour) {
    Send(EM_SETBKGNDCOLOR, 0, static_cast<LPARAM>(colour));
}

}  // namespace wordhawk
