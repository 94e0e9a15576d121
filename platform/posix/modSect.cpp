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

ProfileReader::ProfileReader(ProfileFile file) : file_(std::move(file)), text_(Load(file_)) {}

std::wstring ProfileReader::ReadSetting(std::wstring_view section, std::wstring_view key,
                                        std::wstring_view default_text) const {
    return ValueAsRead(text_->Value(section, key), default_text);
}

std::vector<std::wstring> ProfileReader::ReadSettings(
    std::wstring_view section, std::span<const KeyAndValue> keys_and_defaults) const {
    std::vector<std::wstring_view> keys;
    for (const KeyAndValue& each : keys_and_defaults) keys.push_back(each.key);
    const auto stored = text_->Values(section, keys);
    std::vector<std::wstring> values;
    for (std::size_t i = 0; i < stored.size(); ++i)
        values.push_back(ValueAsRead(stored[i], keys_and_defaults[i].value));
    return values;
}

std::vector<std::wstring> ProfileReader::ReadSection(std::wstring_view section) const {
    std::vector<std::wstring> entries = text_->Entries(section);
    if (entries.empty()) entries.emplace_back();
    return entries;
}

std::wstring ReadSetting(std::wstring_view section, std::wstring_view key,
                         std::wstring_view default_text, const ProfileFile& file) {
    return ProfileReader(file).ReadSetting(section, key, default_text);
}

std::vector<std::wstring> ReadSettings(std::wstring_view section,
                                       std::span<const KeyAndValue> keys_and_defaults,
                                       const ProfileFile& file) {
    return ProfileReader(file).ReadSettings(section, keys_and_defaults);
}

std::vector<std::wstring> ReadSection(const ProfileFile& file, std::wstring_view section) {
    return ProfileReader(file).ReadSection(section);
}

}  // namespace modSect
}  // namespace wordhawk
