#pragma once

#include "tests/support/fake_services.h"
#include "ui/desktop.h"

#include <string>
#include <vector>

namespace wordhawk::test {

/// A clipboard that is two members.
class FakeClipboard : public Clipboard {
  public:
    bool HasPlainText() const override { return plain.has_value(); }
    bool HasRichText() const override { return rich.has_value(); }
    std::optional<std::wstring> PlainText() const override { return in_use ? std::nullopt : plain; }
    std::optional<std::string> RichText() const override { return in_use ? std::nullopt : rich; }
    bool SetPlainText(std::wstring_view text) override {
        if (in_use) return false;
        plain = std::wstring(text);
        rich.reset();
        return true;
    }
    bool SetRichText(std::string_view rtf, std::wstring_view text) override {
        if (!SetPlainText(text)) return false;
        rich = std::string(rtf);
        return true;
    }

    std::optional<std::wstring> plain;
    std::optional<std::string> rich;
    /// Another program keeps it.
    bool in_use = false;
};

class FakeSound : public Sound {
  public:
    bool Play(std::wstring_view file) override {
        played.emplace_back(file);
        return true;
    }
    std::vector<std::wstring> played;
};

/// Answers with the file it was told to.
class FakeFileDialogs : public FileDialogs {
  public:
    std::optional<FileChoice> AskOpen(HWND, const std::wstring& title,
                                      const std::wstring& asked_filters) override {
        titles.push_back(title);
        filters = asked_filters;
        return choice;
    }
    std::optional<FileChoice> AskSave(HWND, const std::wstring& title,
                                      const std::wstring& asked_filters,
                                      const Path& start) override {
        titles.push_back(title);
        filters = asked_filters;
        folder = start;
        return choice;
    }
    std::optional<Path> AskFile(HWND, const std::wstring& title, const std::wstring& asked_filters,
                                const Path& start) override {
        titles.push_back(title);
        filters = asked_filters;
        folder = start;
        return choice ? std::optional(choice->file) : std::nullopt;
    }
    std::optional<FileChoice> choice;
    std::vector<std::wstring> titles;
    std::wstring filters;
    Path folder;
};

/// Remembers which menus came up, how their entries looked, and chooses an entry by position.
class FakeMenus : public MenuTracker {
  public:
    int Track(HWND, HMENU menu, POINT) override {
        shown.push_back(menu);
        enabled.clear();
        for (int i = 0; i < GetMenuItemCount(menu); ++i) {
            const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
            enabled.push_back((state & (MF_GRAYED | MF_DISABLED)) == 0);
        }
        return choose < 0 ? 0 : static_cast<int>(GetMenuItemID(menu, choose));
    }
    std::vector<HMENU> shown;
    std::vector<bool> enabled;
    int choose = -1;
};

struct FakeDesktop {
    FakeUi ui;
    FakeClipboard clipboard;
    FakeSound sound;
    FakeFileDialogs files;
    FakeMenus menus;
    Desktop desktop{ui, clipboard, sound, files, menus};
};

}  // namespace wordhawk::test
