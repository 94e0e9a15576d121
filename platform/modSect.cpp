#include "platform/modSect.h"

#include "platform/profile_page.h"
#include "platform/replace_file.h"
#include "platform/single_writer.h"

#include <algorithm>

namespace wordhawk::modSect {
namespace {

std::wstring_view WithoutQuotes(std::wstring_view text) {
    if (text.size() < 2 || text.front() != text.back()) return text;
    if (text.front() != L'"' && text.front() != L'\'') return text;
    return text.substr(1, text.size() - 2);
}

/// What a file with these bytes holds after the change.
Result<std::string> Changed(std::string_view bytes, const AnsiCodePage& page,
                            const std::function<Result<void>(Change&)>& change) {
    ProfileText text(bytes, page);
    Change wanted(text, page);
    if (const Result<void> changed = change(wanted); !changed)
        return tl::unexpected(changed.error());
    return text.Bytes();
}

}  // namespace

std::wstring_view StripNull(std::wstring_view text) { return text.substr(0, text.find(L'\0')); }

std::wstring_view OneLine(std::wstring_view text) {
    return text.substr(0, text.find_first_of(L"\r\n"));
}

std::wstring ValueAsRead(const std::optional<std::wstring_view>& stored,
                         std::wstring_view default_text) {
    std::wstring_view value;
    if (stored) {
        value = WithoutQuotes(*stored);
    } else {
        value = StripNull(default_text);
        value = value.substr(0, value.find_last_not_of(L' ') + 1);
    }
    return std::wstring(value.substr(0, kValueBuffer - 1));
}

std::vector<std::wstring> Change::Section(std::wstring_view section) const {
    std::vector<std::wstring> entries = text_.Entries(section);
    if (entries.empty()) entries.emplace_back();
    return entries;
}

std::wstring Change::Value(std::wstring_view section, std::wstring_view key,
                           std::wstring_view default_text) const {
    return ValueAsRead(text_.Value(section, key), default_text);
}

void Change::Set(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
    value = StripNull(OneLine(value));
    if (text_.IsUnicode()) {
        text_.SetValue(section, key, value);
    } else {
        text_.SetValue(section, key, ProfileForm(value, page_));
    }
}

bool Change::CanHold(std::wstring_view text) const {
    return text_.IsUnicode() || ProfilePageHolds(text, page_);
}

Result<void> ChangeProfile(const ProfileFile& file,
                           const std::function<Result<void>(Change&)>& change) {
    const AnsiCodePage& page = ProfilePage(file.page);
    // A file is replaced whole, so what is read without the lock stood there at one moment.
    if (const Result<std::string> bytes = ReadWholeFile(file.path)) {
        const Result<std::string> wanted = Changed(*bytes, page, change);
        if (wanted && *wanted == *bytes) return {};
    }
    const Result<LockedFile> locked = LockForChange(file.path);
    if (!locked) return tl::unexpected(locked.error());
    const bool is_new = IsMissing(locked->path);
    std::string old_bytes;
    if (!is_new) {
        Result<std::string> bytes = ReadWholeFile(locked->path);
        // Never to be mistaken for an empty file and written over.
        if (!bytes) return tl::unexpected(Error{bytes.error().what, file.path});
        old_bytes = std::move(*bytes);
    }
    const Result<std::string> new_bytes = Changed(old_bytes, page, change);
    if (!new_bytes) return tl::unexpected(new_bytes.error());
    if (!is_new && *new_bytes == old_bytes) return {};
    const Result<void> replaced = ReplaceFileContents(locked->path, *new_bytes);
    if (!replaced) return tl::unexpected(Error{replaced.error().what, file.path});
    return {};
}

bool WriteSetting(std::wstring_view section, std::wstring_view key, std::wstring_view value,
                  const ProfileFile& file) {
    const KeyAndValue one{std::wstring(key), std::wstring(value)};
    return WriteSettings(section, {&one, 1}, file);
}

bool WriteSettings(std::wstring_view section, std::span<const KeyAndValue> values,
                   const ProfileFile& file) {
    const auto set_all = [&](Change& change) -> Result<void> {
        for (const auto& [key, value] : values) change.Set(section, key, value);
        return {};
    };
    return ChangeProfile(file, set_all).has_value();
}

}  // namespace wordhawk::modSect
