#include "platform/modSect.h"

#include "platform/locale_ids.h"
#include "platform/posix/profile_text.h"
#include "platform/replace_file.h"
#include "platform/single_writer.h"

namespace wordhawk::modSect {
namespace {

const AnsiCodePage& ProfilePage() {
    return AnsiCodePage::Get(SystemAnsiPage(SystemDefaultLocale()));
}

ProfileText Load(const Path& file) {
    const Result<std::string> bytes = ReadWholeFile(file);
    return {bytes ? std::string_view(*bytes) : std::string_view(), ProfilePage()};
}

std::wstring_view WithoutQuotes(std::wstring_view text) {
    if (text.size() < 2 || text.front() != text.back()) return text;
    if (text.front() != L'"' && text.front() != L'\'') return text;
    return text.substr(1, text.size() - 2);
}

/// Changes the file under the folder's lock, so that two programs writing different keys at once
/// both succeed.
template <class Change>
bool ChangeProfile(const Path& file, Change change) {
    const Path folder = file.has_parent_path() ? file.parent_path() : Path(".");
    const Result<SingleWriter> lock = SingleWriter::Acquire(folder);
    if (!lock) return false;
    std::error_code error;
    const bool exists = std::filesystem::exists(file, error);
    std::string old_bytes;
    if (exists) {
        Result<std::string> bytes = ReadWholeFile(file);
        // Never to be mistaken for an empty file and written over.
        if (!bytes) return false;
        old_bytes = std::move(*bytes);
    }
    ProfileText profile(old_bytes, ProfilePage());
    change(profile);
    const std::string new_bytes = profile.Bytes();
    if (exists && new_bytes == old_bytes) return true;
    return ReplaceFileContents(file, new_bytes).has_value();
}

}  // namespace

std::wstring ReadSetting(std::wstring_view section, std::wstring_view key,
                         std::wstring_view default_text, const Path& file) {
    const ProfileText profile = Load(file);
    std::wstring_view value;
    if (const auto found = profile.Value(section, key)) {
        value = WithoutQuotes(*found);
    } else {
        value = StripNull(default_text);
        value = value.substr(0, value.find_last_not_of(L' ') + 1);
    }
    return std::wstring(value.substr(0, kValueBuffer - 1));
}

bool WriteSetting(std::wstring_view section, std::wstring_view key, std::wstring_view value,
                  const Path& file) {
    return ChangeProfile(file, [&](ProfileText& profile) {
        profile.SetValue(section, key, StripNull(OneLine(value)));
    });
}

bool WriteSettings(std::wstring_view section, std::span<const KeyAndValue> values,
                   const Path& file) {
    return ChangeProfile(file, [&](ProfileText& profile) {
        for (const auto& [key, value] : values) {
            profile.SetValue(section, key, StripNull(OneLine(value)));
        }
    });
}

std::vector<std::wstring> ReadSection(const Path& file, std::wstring_view section) {
    std::vector<std::wstring> entries = Load(file).Entries(section);
    if (entries.empty()) entries.emplace_back();
    return entries;
}

}  // namespace wordhawk::modSect
