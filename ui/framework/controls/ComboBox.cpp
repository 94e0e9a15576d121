#include "ui/framework/controls/ComboBox.h"

namespace wordhawk {

void ComboBox::Create(const Where& where) {
    Make(where, L"COMBOBOX",
         WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_HASSTRINGS | CBS_OWNERDRAWFIXED);
}

std::wstring ComboBox::Item(int index) const {
    const int length = Index(CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
    if (length < 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    Send(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void ComboBox::Fill(const std::vector<std::wstring>& texts) {
    Send(CB_RESETCONTENT);
    for (const std::wstring& text : texts) {
        Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

int ComboBox::FindExact(std::wstring_view text) const {
    const std::wstring value(text);
    return Index(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                 reinterpret_cast<LPARAM>(value.c_str()));
}

std::vector<std::wstring> ComboBox::Texts() const {
    std::vector<std::wstring> texts;
    for (int i = 0; i < Count(); ++i) texts.push_back(Item(i));
    return texts;
}

void ComboBox::SetItemHeight(int pixels) {
    Send(CB_SETITEMHEIGHT, 0, pixels);
    Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), pixels);
}

}  // namespace wordhawk
