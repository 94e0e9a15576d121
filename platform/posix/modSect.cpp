#include "platform/modSect.h"

#include "platform/locale_ids.h"
#include "platform/profile_page.h"

#include <algorithm>

namespace wordhawk {

const AnsiCodePage& ProfilePage(const AnsiCodePage* wanted) {
    return wanted != nullptr ? *wanted : AnsiCodePage::Get(SystemAnsiPage(SystemDefaultLocale()));
}

std::wstring ProfileForm(std::wstring_view value, const AnsiCodePage&) {
    return std::wstring(value);
}

bool ProfilePageHolds(std::wstring_view text, const AnsiCodePage& page) {
    return std::all_of(text.begin(), text.end(),
                       [&](wchar_t c) { return page.ToByteOrNone(c) >= 0; });
}

namespace modSect {
namespace {

ProfileText Load(const ProfileFile& file) {
    const Result<std::string> bytes = ReadWholeFile(file.path);
    return {bytes ? std::string_view(*bytes) : std::string_view(), ProfilePage(file.page)};
}

}  // namespace

std::wstring ReadSetting(std::wstring_view section, std::wstring_view key,
                         std::wstring_view default_text, const ProfileFile& file) {
    return ValueAsRead(Load(file).Value(section, key), default_text);
}

std::vector<std::wstring> ReadSettings(std::wstring_view section,
                                       std::span<const KeyAndValue> keys_and_defaults,
                                       const ProfileFile& file) {
    const ProfileText profile = Load(file);
    std::vector<std::wstring_view> keys;
    for (const KeyAndValue& each : keys_and_defaults) keys.push_back(each.key);
    const auto stored = profile.Values(section, keys);
    std::vector<std::wstring> values;
    for (std::size_t i = 0; i < stored.size(); ++i)
        values.push_back(ValueAsRead(stored[i], keys_and_defaults[i].value));
    return values;
}

std::vector<std::wstring> ReadSection(const ProfileFile& file, std::wstring_view section) {
    std::vector<std::wstring> entries = Load(file).Entries(section);
    if (entries.empty()) entries.emplace_back();
    return entries;
}

}  // namespace modSect
}  // namespace wordhawk
