#include "dict/dictionary_names.h"

#include "platform/text.h"

#include <algorithm>
#include <array>

namespace wordhawk {
namespace {

constexpr std::size_t kLongestName = 255;
constexpr std::wstring_view kExtension = L".DIC";
constexpr std::wstring_view kForbidden = L"\\/:*?\"<>|";

/// Names that Windows gives to devices, whatever extension follows.
constexpr std::array<std::wstring_view, 7> kDevices = {L"con",    L"prn",     L"aux",   L"nul",
                                                       L"conin$", L"conout$", L"clock$"};

bool IsDeviceName(std::wstring_view name) {
    const std::wstring stem = Lower(Trim(name.substr(0, name.find(L'.'))));
    if (std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end()) return true;
    // COM and LPT with a digit, also with one of the three raised digits of the ANSI page.
    return stem.size() == 4 && (stem.starts_with(L"com") || stem.starts_with(L"lpt")) &&
           std::wstring_view(L"0123456789\u00B9\u00B2\u00B3").find(stem[3]) !=
               std::wstring_view::npos;
}

/// Why `name` cannot be a file name of its own; empty when it can.
std::wstring_view Objection(std::wstring_view name) {
    if (name.empty()) return L"a dictionary needs a name";
    if (name.size() > kLongestName) return L"the name of the dictionary is too long";
    if (std::any_of(name.begin(), name.end(),
                    [](wchar_t c) { return c < 32 || (c >= 127 && c < 160); })) {
        return L"the name of a dictionary cannot hold control characters";
    }
    if (name.find_first_of(kForbidden) != std::wstring_view::npos) {
        return L"the name of a dictionary cannot hold any of \\ / : * ? \" < > |";
    }
    if (name.back() == L'.' || name.back() == L' ') {
        return L"the name of a dictionary cannot end in a full stop or a blank";
    }
    if (IsDeviceName(name)) return L"the name of a dictionary cannot be that of a device";
    return {};
}

}  // namespace

bool IsPlainFileName(std::wstring_view name) { return Objection(name).empty(); }

Result<std::wstring> CustomDictionaryName(std::wstring_view name) {
    std::wstring full(name);
    const bool has_extension =
        name.size() >= kExtension.size() &&
        EqualIgnoringCase(name.substr(name.size() - kExtension.size()), kExtension);
    std::wstring_view objection = Objection(full);
    if (objection.empty() && !has_extension) {
        full += kExtension;
        objection = Objection(full);
    }
    if (objection.empty() && full.size() == kExtension.size()) objection = Objection({});
    if (!objection.empty()) return tl::unexpected(Error{std::wstring(objection), {}});
    return full;
}

}  // namespace wordhawk
