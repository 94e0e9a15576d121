#include "platform/modSect.h"

#include "platform/text.h"
#include "platform/win32/win.h"

#include <algorithm>

namespace wordhawk::modSect {
namespace {

/// The profile calls look for a file without any folder in the system's own one.
std::wstring ProfileName(const Path& file) {
    return file.has_parent_path() ? file.native() : L".\\" + file.native();
}

/// Asked beforehand: not every system's profile writer respects the mark.
bool IsReadOnly(const std::wstring& profile) {
    const DWORD attributes = GetFileAttributesW(profile.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

}  // namespace

std::wstring ReadSetting(std::wstring_view section, std::wstring_view key,
                         std::wstring_view default_text, const Path& file) {
    const std::wstring section_name(section);
    const std::wstring key_name(key);
    const std::wstring default_value(default_text);
    wchar_t buffer[kValueBuffer];
    const DWORD length =
        GetPrivateProfileStringW(section_name.c_str(), key_name.c_str(), default_value.c_str(),
                                 buffer, kValueBuffer, ProfileName(file).c_str());
    return std::wstring(StripNull({buffer, length}));
}

bool WriteSetting(std::wstring_view section, std::wstring_view key, std::wstring_view value,
                  const Path& file) {
    const std::wstring section_name(section);
    const std::wstring key_name(key);
    const std::wstring text(OneLine(value));
    const std::wstring profile = ProfileName(file);
    return !IsReadOnly(profile) &&
           WritePrivateProfileStringW(section_name.c_str(), key_name.c_str(), text.c_str(),
                                      profile.c_str()) != 0;
}

bool WriteSettings(std::wstring_view section, std::span<const KeyAndValue> values,
                   const Path& file) {
    const std::wstring profile = ProfileName(file);
    if (GetFileAttributesW(profile.c_str()) == INVALID_FILE_ATTRIBUTES) {
        // Each call rewrites the file, so that a new one is given its whole section at once.
        const std::wstring section_name(section);
        std::wstring lines;
        for (const auto& [key, value] : values) {
            lines.append(key).append(L"=").append(StripNull(OneLine(value))).push_back(L'\0');
        }
        return WritePrivateProfileSectionW(section_name.c_str(), lines.c_str(), profile.c_str()) !=
               0;
    }
    bool written = true;
    for (const auto& [key, value] : values) written &= WriteSetting(section, key, value, file);
    return written;
}

std::vector<std::wstring> ReadSection(const Path& file, std::wstring_view section) {
    const std::wstring section_name(section);
    const std::wstring profile = ProfileName(file);
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

}  // namespace wordhawk::modSect
