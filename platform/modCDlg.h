#pragma once

#include <string>
#include <string_view>

/// The system's open and save dialogs. Filters are pairs of description and pattern, all separated
/// by NUL characters. A cancelled dialog, one that fails to open, and a system without such dialogs
/// give false and leave every output as it was.
namespace wordhawk::modCDlg {

/// The system's window handle of the owner, or null.
using OwnerWindow = void*;

/// What a dialog starts with.
struct Request {
    OwnerWindow owner = nullptr;
    std::wstring_view filter;
    /// From 1; 0 for none.
    int filter_index = 1;
    std::wstring_view file_name;
    std::wstring_view folder;
    std::wstring_view title;
};

/// Asks for an existing file. `file_name` becomes its path, `file_title` its name without folder.
bool ShowOpen(const Request& request, std::wstring& file_name, std::wstring& file_title);

/// Asks where to save; an existing file is confirmed by the user. `default_extension` (without dot)
/// is appended to a name without any; `filter_index` becomes the filter chosen.
bool ShowSave(const Request& request, std::wstring_view default_extension, int& filter_index,
              std::wstring& file_name, std::wstring& file_title);

}  // namespace wordhawk::modCDlg
