#include "platform/modSect.h"

#include "platform/locale_ids.h"
#include "platform/profile_page.h"
#include "platform/text.h"
#include "platform/win32/win.h"

#include <algorithm>

namespace wordhawk {
namespace {

/// The text in the system's own page, without look-alikes for what the page lacks.
std::string InSystemPage(std::wstring_view text, bool* lossy) {
    // UTF-8 knows neither flag nor loss.
    const bool is_utf8 = GetACP() == CP_UTF8;
    const DWORD flags = is_utf8 ? 0 : WC_NO_BEST_FIT_CHARS;
    BOOL replaced = FALSE;
    BOOL* const told = is_utf8 ? nullptr : &replaced;
    const auto size = static_cast<int>(text.size());
    const int length =
        WideCharToMultiByte(CP_ACP, flags, text.data(), size, nullptr, 0, nullptr, told);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_ACP, flags, text.data(), size, bytes.data(), length, nullptr, told);
    if (lossy != nullptr) *lossy = replaced != FALSE;
    return bytes;
}

bool IsSystemPage(const AnsiCodePage& page) { return static_cast<int>(GetACP()) == page.Number(); }

}  // namespace

const AnsiCodePage& ProfilePage(const AnsiCodePage*) {
    return AnsiCodePage::Get(SystemAnsiPage(SystemDefaultLocale()));
}

std::wstring ProfileForm(std::wstring_view value, const AnsiCodePage& page) {
    return IsSystemPage(page) ? std::wstring(value) : page.Decode(InSystemPage(value, nullptr));
}

bool ProfilePageHolds(std::wstring_view text, const AnsiCodePage& page) {
    if (IsSystemPage(page)) {
        return std::all_of(text.begin(), text.end(),
                           [&](wchar_t c) { return page.ToByteOrNone(c) >= 0; });
    }
    bool lossy = false;
    InSystemPage(text, &lossy);
    return !lossy;
}

namespace modSect {
namespace {

/// The profile calls look for a file without any folder in the system's own one.
std::wstring ProfileName(const Path& file) {
    return file.has_parent_path() ? file.native() : L".\\" + file.native();
}

}  // namespace

std::wstring ReadSetting(std::wstring_view section, std::wstring_view key,
                         std::wstring_view default_text, const ProfileFile& file) {
    const std::wstring section_name(section);
    const std::wstring key_name(key);
    const std::wstring default_value(default_text);
    wchar_t buffer[kValueBuffer];
    const DWORD length =
        GetPrivateProfileStringW(section_name.c_str(), key_name.c_str(), default_value.c_str(),
                                 buffer, kValueBuffer, ProfileName(file.path).c_str());
    return std::wstring(StripNull({buffer, length}));
}

std::vector<std::wstring> ReadSettings(std::wstring_view section,
                                       std::span<const KeyAndValue> keys_and_defaults,
                                       const ProfileFile& file) {
    std::vector<std::wstring> values;
    for (const auto& [key, default_text] : keys_and_defaults)
        values.push_back(ReadSetting(section, key, default_text, file));
    return values;
}

std::vector<std::wstring> ReadSection(const ProfileFile& file, std::wstring_view section) {
    const std::wstring section_name(section);
    const std::wstring profile = ProfileName(file.path);
    std::wstring buffer(1024, L'\0');
    DWORD length = 0;
    for (;;) {
        const auto size = static_cast<DWORD>(buffer.size());
        length =
            GetPrivateProfileSectionW(section_name.c_str(), buffer.data(), size, profile.c_str());
        if (length < size - 2) break;
        buffer.resize(buffer.size() * 2);
    }
    std::vector<std::wstring> entries;
    std::wstring_view rest(buffer.data(), length);
    while (!rest.empty()) {
        const std::wstring_view entry = StripNull(rest);
        entries.emplace_back(entry);
        rest.remove_prefix(std::min(entry.size() + 1, rest.size()));
    }
    if (entries.empty()) entries.emplace_back();
    return entries;
}

ProfileReader::ProfileReader(ProfileFile file) : file_(std::move(file)) {}

std::wstring ProfileReader::ReadSetting(std::wstring_view section, std::wstring_view key,
                                        std::wstring_view default_text) const {
    return modSect::ReadSetting(section, key, default_text, file_);
}

std::vector<std::wstring> ProfileReader::ReadSettings(
    std::wstring_view section, std::span<const KeyAndValue> keys_and_defaults) const {
    return modSect::ReadSettings(section, keys_and_defaults, file_);
}

std::vector<std::wstring> ProfileReader::ReadSection(std::wstring_view section) const {
    return modSect::ReadSection(file_, section);
}

}  // namespace modSect
}  // namespace wordhawk
