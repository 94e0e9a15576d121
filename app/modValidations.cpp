#include "app/modValidations.h"

#include "platform/files.h"
#include "platform/text.h"

#include <algorithm>

namespace wordhawk::modValidations {

bool FileExists(std::wstring_view path) { return IsFile(PathFromText(path)); }

std::uint8_t GetFileType(std::wstring_view path) {
    const std::size_t dot = path.rfind(L'.');
    if (dot == path.npos) return kNoExtension;
    if (!FileExists(path)) return kMissingFile;
    const std::wstring extension = Lower(path.substr(dot + 1));
    if (extension == L"txt") return kTextFile;
    if (extension == L"rtf") return kRichTextFile;
    return kOtherExtension;
}

std::uint8_t IsAllUpperCase(std::wstring_view text) {
    const auto is_upper = [](wchar_t c) { return UpperChar(c) == c; };
    return !text.empty() && std::all_of(text.begin(), text.end(), is_upper) ? 1 : 0;
}

std::uint8_t HasDigit(std::wstring_view text) {
    return text.find_first_of(L"0123456789") != text.npos ? 1 : 0;
}

}  // namespace wordhawk::modValidations
