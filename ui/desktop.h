#pragma once

#include "platform/clipboard.h"
#include "platform/sound.h"
#include "platform/ui_services.h"
#include "platform/win32/win.h"

#include <optional>
#include <string>

namespace wordhawk {

/// A document kind that the file dialogs offer; the number is that of its filter.
enum class DocumentKind { Plain = 1, Rich = 2 };

struct FileChoice {
    Path file;
    /// The filter that was chosen with it.
    DocumentKind filter = DocumentKind::Plain;
};

/// The dialogs that ask for a file.
class FileDialogs {
  public:
    virtual ~FileDialogs() = default;
    /// None when the user cancelled. `filters` are pairs of description and pattern, each ended by
    /// a NUL.
    virtual std::optional<FileChoice> AskOpen(HWND owner, const std::wstring& title,
                                              const std::wstring& filters) = 0;
    virtual std::optional<FileChoice> AskSave(HWND owner, const std::wstring& title,
                                              const std::wstring& filters, const Path& folder) = 0;
    /// Any file to be read: a dictionary, a sound. Starts in `folder`.
    virtual std::optional<Path> AskFile(HWND owner, const std::wstring& title,
                                        const std::wstring& filters, const Path& folder) = 0;
};

/// Shows a pop-up menu and waits for the choice.
class MenuTracker {
  public:
    virtual ~MenuTracker() = default;
    /// The command chosen, 0 for none.
    virtual int Track(HWND owner, HMENU menu, POINT screen) = 0;
};

/// What the windows ask of the system beyond windows; tests answer in its place.
struct Desktop {
    UiServices& ui;
    Clipboard& clipboard;
    Sound& sound;
    FileDialogs& files;
    MenuTracker& menus;
};

/// The dialogs and menus of the screen.
class SystemFileDialogs : public FileDialogs {
  public:
    std::optional<FileChoice> AskOpen(HWND owner, const std::wstring& title,
                                      const std::wstring& filters) override;
    std::optional<FileChoice> AskSave(HWND owner, const std::wstring& title,
                                      const std::wstring& filters, const Path& folder) override;
    std::optional<Path> AskFile(HWND owner, const std::wstring& title, const std::wstring& filters,
                                const Path& folder) override;
};
class SystemMenuTracker : public MenuTracker {
  public:
    int Track(HWND owner, HMENU menu, POINT screen) override;
};

}  // namespace wordhawk
