#include "ui/desktop.h"

#include "platform/modCDlg.h"
#include "ui/framework/held_keys.h"

namespace wordhawk {
namespace {

modCDlg::Request MakeRequest(HWND owner, const std::wstring& title, const std::wstring& filters) {
    modCDlg::Request request;
    request.owner = owner;
    request.title = title;
    request.filter = filters;
    return request;
}

}  // namespace

std::optional<FileChoice> SystemFileDialogs::AskOpen(HWND owner, const std::wstring& title,
                                                     const std::wstring& filters) {
    std::wstring name;
    std::wstring file_title;
    const IgnoreHeldKeys guard;
    if (!modCDlg::ShowOpen(MakeRequest(owner, title, filters), name, file_title))
        return std::nullopt;
    return FileChoice{PathFromText(name), DocumentKind::Plain};
}

std::optional<FileChoice> SystemFileDialogs::AskSave(HWND owner, const std::wstring& title,
                                                     const std::wstring& filters,
                                                     const Path& folder) {
    modCDlg::Request request = MakeRequest(owner, title, filters);
    const std::wstring start = TextFromPath(folder);
    request.folder = start;
    int filter = request.filter_index;
    std::wstring name;
    std::wstring file_title;
    const IgnoreHeldKeys guard;
    if (!modCDlg::ShowSave(request, L"txt", filter, name, file_title)) return std::nullopt;
    return FileChoice{PathFromText(name), filter == 2 ? DocumentKind::Rich : DocumentKind::Plain};
}

std::optional<Path> SystemFileDialogs::AskFile(HWND owner, const std::wstring& title,
                                               const std::wstring& filters, const Path& folder) {
    modCDlg::Request request = MakeRequest(owner, title, filters);
    const std::wstring start = TextFromPath(folder);
    request.folder = start;
    std::wstring name;
    std::wstring file_title;
    if (!modCDlg::ShowOpen(request, name, file_title)) return std::nullopt;
    return PathFromText(name);
}

int SystemMenuTracker::Track(HWND owner, HMENU menu, POINT screen) {
    return TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, screen.x, screen.y, 0, owner,
                          nullptr);
}

}  // namespace wordhawk
