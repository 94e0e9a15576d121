#include "ui/framework/controls/Menu.h"

namespace wordhawk {

UINT MenuItem::State() const {
    const UINT state = GetMenuState(menu_, static_cast<UINT>(id_), MF_BYCOMMAND);
    return state == static_cast<UINT>(-1) ? 0 : state;
}

bool MenuItem::Enabled() const { return (State() & (MF_DISABLED | MF_GRAYED)) == 0; }

void MenuItem::SetEnabled(bool enabled) {
    EnableMenuItem(menu_, static_cast<UINT>(id_),
                   MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
}

bool MenuItem::Checked() const { return (State() & MF_CHECKED) != 0; }

void MenuItem::SetChecked(bool checked) {
    CheckMenuItem(menu_, static_cast<UINT>(id_),
                  MF_BYCOMMAND | (checked ? MF_CHECKED : MF_UNCHECKED));
}

std::wstring MenuItem::Caption() const {
    wchar_t text[512];
    const int length = GetMenuStringW(menu_, static_cast<UINT>(id_), text,
                                      static_cast<int>(std::size(text)), MF_BYCOMMAND);
    return {text, static_cast<std::size_t>(length)};
}

void MenuItem::SetCaption(const std::wstring& caption) {
    std::wstring value = caption;
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STRING;
    info.dwTypeData = value.data();
    SetMenuItemInfoW(menu_, static_cast<UINT>(id_), FALSE, &info);
}

MenuItem& PopupMenu::Add(int id, const std::wstring& caption) {
    AppendMenuW(Handle(), MF_STRING, static_cast<UINT_PTR>(id), caption.c_str());
    items_.push_back(std::make_unique<MenuItem>(Handle(), id));
    return *items_.back();
}

void PopupMenu::AddSeparator() {
    AppendMenuW(Handle(), MF_SEPARATOR, 0, nullptr);
    items_.push_back(nullptr);
}

void PopupMenu::RemoveFrom(std::size_t first) {
    while (items_.size() > first) {
        items_.pop_back();
        DeleteMenu(Handle(), static_cast<UINT>(items_.size()), MF_BYPOSITION);
    }
}

}  // namespace wordhawk
