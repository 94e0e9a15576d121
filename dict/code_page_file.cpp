#include "dict/code_page_file.h"

#include "platform/replace_file.h"

#include <string>
#include <string_view>

namespace wordhawk {

const AnsiCodePage* CodePageOfFolder(const Path& folder) {
    const Result<std::string> bytes = ReadWholeFile(folder / kCodePageFile);
    if (!bytes) return nullptr;
    std::string_view text = *bytes;
    while (!text.empty() && (text.back() == '\r' || text.back() == '\n')) text.remove_suffix(1);
    const int number = NumberOrZero(std::wstring(text.begin(), text.end()));
    const AnsiCodePage& page = AnsiCodePage::Get(number);
    return page.Number() == number ? &page : nullptr;
}

Result<void> WriteCodePageOfFolder(const Path& folder, const AnsiCodePage& page) {
    return ReplaceFileContents(folder / kCodePageFile, std::to_string(page.Number()) + "\r\n",
                               Durability::LeftToTheSystem);
}

}  // namespace wordhawk
