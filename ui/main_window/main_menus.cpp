#include "ui/main_window/main_menus.h"

#include "lang/text_ids.h"

namespace wordhawk {
namespace {

// Each menu's entries are numbered from its own base, by index.
constexpr int kFileBase = 2000;
constexpr int kSearchBase = 2100;
constexpr int kRemoveBase = 2200;
constexpr int kListBase = 2300;
constexpr int kCustomBase = 3000;
constexpr int kCustomLimit = 10000;

std::wstring Id(int text) { return std::to_wstring(text); }

}  // namespace

MainMenus::MainMenus() {
    const auto fill = [](PopupMenu& menu, int base, std::initializer_list<bool> entries) {
        int index = 0;
        for (const bool is_entry : entries) {
            if (is_entry) menu.Add(base + index, L"");
            if (!is_entry) menu.AddSeparator();
            ++index;
        }
    };
    fill(mnuFile, kFileBase, {true, false, true, true, true, true, false, true});
    fill(mnuSearch, kSearchBase, {true, true, true, false, true, false, true, true});
    fill(mnuRemove, kRemoveBase, {true, true, false, true, true});
    fill(mnuList, kListBase, {true, true});
    for (int i = 0; i < kSearchModes; ++i) {
        mnuSearchBy[static_cast<std::size_t>(i)] = mnuSearch[static_cast<std::size_t>(i)];
    }
    mnuDiversity = mnuSearch[kDiversity];
    mnuAlwaysEverywhere = mnuSearch[kAlwaysEverywhere];
    mnuEverywhere = mnuSearch[kEverywhere];
    mnuRemove[kRemoveHeading]->SetEnabled(false);
    SetTextIds();
}

void MainMenus::SetTextIds() {
    using namespace text_id;
    mnuFile[MainMenus::kUndo]->SetCaption(Id(text_id::kUndo));
    mnuFile[MainMenus::kCut]->SetCaption(Id(text_id::kCut));
    mnuFile[MainMenus::kCopy]->SetCaption(Id(text_id::kCopy));
    mnuFile[MainMenus::kPaste]->SetCaption(Id(text_id::kPaste));
    mnuFile[MainMenus::kDelete]->SetCaption(Id(text_id::kDelete));
    mnuFile[MainMenus::kSelectAll]->SetCaption(Id(text_id::kSelectAll));
    mnuSearchBy[0]->SetCaption(Id(kSearchBySound));
    mnuSearchBy[1]->SetCaption(Id(kSearchByAny));
    mnuSearchBy[2]->SetCaption(Id(kSearchByCloseSound));
    mnuDiversity->SetCaption(Id(kCountSwaps));
    mnuAlwaysEverywhere->SetCaption(Id(text_id::kAlwaysEverywhere));
    mnuEverywhere->SetCaption(Id(kSearchEverywhere));
    mnuRemove[kRemoveHeading]->SetCaption(Id(kSuggestions));
    mnuRemove[kRemove]->SetCaption(Id(kRemoveWord));
    mnuRemove[kCopySuggestion]->SetCaption(Id(text_id::kCopy));
    mnuRemove[kCopySuggestions]->SetCaption(Id(kCopyList));
    mnuList[0]->SetCaption(Id(kCopyWord));
    mnuList[1]->SetCaption(Id(kCopyList));
}

std::vector<FormControl*> MainMenus::All() {
    std::vector<FormControl*> items;
    // The custom dictionaries' names are no text ids, even when they are numbers.
    for (PopupMenu* menu : {&mnuFile, &mnuSearch, &mnuRemove, &mnuList}) {
        for (std::size_t i = 0; i < menu->Count(); ++i) {
            if ((*menu)[i] != nullptr) items.push_back((*menu)[i]);
        }
    }
    return items;
}

void MainMenus::FillCustom(const std::vector<std::wstring>& names) {
    mnuCust.RemoveFrom(0);
    for (const std::wstring& name : names) {
        const int command = kCustomBase + static_cast<int>(mnuCust.Count());
        if (command >= kCustomLimit) break;
        // A name is no caption: an "&" in it is a character.
        std::wstring caption;
        for (const wchar_t c : name) caption.append(c == L'&' ? 2 : 1, c);
        mnuCust.Add(command, caption);
    }
}

void MainMenus::CheckSearchMode(int mode) {
    for (int i = 0; i < kSearchModes; ++i) {
        mnuSearchBy[static_cast<std::size_t>(i)]->SetChecked(i == mode);
    }
}

std::optional<MainMenus::Choice> MainMenus::Decode(int command) const {
    struct Range {
        const PopupMenu* menu;
        int base;
    };
    const Range ranges[] = {{&mnuCust, kCustomBase},
                            {&mnuList, kListBase},
                            {&mnuRemove, kRemoveBase},
                            {&mnuSearch, kSearchBase},
                            {&mnuFile, kFileBase}};
    for (const Range& range : ranges) {
        const int index = command - range.base;
        if (index >= 0 && index < static_cast<int>(range.menu->Count()))
            return Choice{range.menu, index};
    }
    return std::nullopt;
}

}  // namespace wordhawk
