#include "ui/framework/controls/ListBox.h"

namespace wordhawk {

void ListBox::Create(const Where& where) { CreateWithStyle(where, WS_VSCROLL); }

void ListBox::CreateWithStyle(const Where& where, DWORD style) {
    Make(where, L"LISTBOX",
         WS_TABSTOP | LBS_NOTIFY | LBS_HASSTRINGS | LBS_OWNERDRAWFIXED | LBS_NOINTEGRALHEIGHT |
             style,
         WS_EX_CLIENTEDGE);
}

std::wstring ListBox::Item(int index) const {
    const int length = Index(LB_GETTEXTLEN, static_cast<WPARAM>(index));
    if (length < 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    Send(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

int ListBox::Insert(int index, std::wstring_view text, LPARAM data) {
    const std::wstring value(text);
    const int at =
        Index(LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(value.c_str()));
    if (at >= 0 && data != 0) Send(LB_SETITEMDATA, static_cast<WPARAM>(at), data);
    return at;
}

void ListBox::Fill(const std::vector<std::wstring>& texts) {
    Send(WM_SETREDRAW, FALSE);
    Clear();
    std::size_t units = 0;
    for (const std::wstring& text : texts) units += text.size() + 1;
    Send(LB_INITSTORAGE, texts.size(), static_cast<LPARAM>(units * sizeof(wchar_t)));
    for (const std::wstring& text : texts) Append(text);
    Send(WM_SETREDRAW, TRUE);
    Redraw();
}

int ListBox::FindExact(std::wstring_view text) const {
    const std::wstring value(text);
    return Index(LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                 reinterpret_cast<LPARAM>(value.c_str()));
}

int ListBox::FindBeginning(std::wstring_view text) const {
    const std::wstring value(text);
    return Index(LB_FINDSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(value.c_str()));
}

std::optional<int> ListBox::At(POINT point) const {
    const LRESULT found = Send(LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    if (HIWORD(found) != 0 || LOWORD(found) >= Count()) return std::nullopt;
    return LOWORD(found);
}

void ListBox::SetItemHeight(int pixels) { Send(LB_SETITEMHEIGHT, 0, pixels); }

}  // namespace wordhawk
