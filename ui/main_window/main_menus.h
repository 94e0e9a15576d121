#pragma once

#include "ui/framework/controls/Menu.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace wordhawk {

/// The pop-up menus of the main window. They ask for what they need to know when they open and say
/// what was chosen; what it means is the window's affair.
class MainMenus {
  public:
    /// Indexes of mnuFiles, of mnuSearchBy and of mnuRemoveWord.
    enum FileItem {
        kUndo,
        kSeparatorAfterUndo,
        kCut,
        kCopy,
        kPaste,
        kDelete,
        kSeparatorAfterDelete,
        kSelectAll
    };
    enum RemoveItem {
        kRemoveHeading,
        kRemove,
        kSeparatorAfterRemove,
        kCopySuggestion,
        kCopySuggestions
    };
    static constexpr int kSearchModes = 3;
    enum SearchItem {
        kSeparatorAfterModes = kSearchModes,
        kDiversity,
        kSeparatorAfterDiversity,
        kAlwaysEverywhere,
        kEverywhere
    };

    MainMenus();

    PopupMenu mnuFile;
    PopupMenu mnuCust;
    PopupMenu mnuSearch;
    PopupMenu mnuRemove;
    PopupMenu mnuList;

    PopupMenu& mnuFiles = mnuFile;
    PopupMenu& mnuCustD = mnuCust;
    PopupMenu& mnuRemoveWord = mnuRemove;
    std::array<MenuItem*, kSearchModes> mnuSearchBy{};
    MenuItem* mnuDiversity = nullptr;
    /// The whole dictionary for every word, a check mark, and for the word shown.
    MenuItem* mnuAlwaysEverywhere = nullptr;
    MenuItem* mnuEverywhere = nullptr;

    /// Puts text ids into the captions for ApplyLanguage to replace.
    void SetTextIds();
    std::vector<FormControl*> All();

    /// One entry for each custom dictionary.
    void FillCustom(const std::vector<std::wstring>& names);
    void CheckSearchMode(int mode);

    /// What an entry's number says: its menu and its index there.
    struct Choice {
        const PopupMenu* menu;
        int index;
    };
    std::optional<Choice> Decode(int command) const;
};

}  // namespace wordhawk
