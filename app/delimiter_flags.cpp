#include "app/delimiter_flags.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::wstring_view kSection = L"Settings";
constexpr std::wstring_view kKey = L"DSA";

/// Flags from `first_flag` on stand for the codes from `first_code` to `last_code`.
struct CodeRange {
    int first_flag;
    int first_code;
    int last_code;
};

// Apostrophe, space and the letters have no flag, and of the codes from 248 up only 248.
constexpr CodeRange kCodeRanges[] = {
    {1, 9, 9},      {2, 33, 38},    {8, 40, 64},     {33, 91, 96},
    {39, 123, 157}, {74, 160, 191}, {106, 215, 215}, {107, 247, 248},
};

/// The flags of a settings section; the text is taken whole, since reading it as a value would cut
/// off its last character.
std::string FlagsIn(const std::vector<std::wstring>& section) {
    std::string flags = DelimiterFlagStore::DefaultFlags();
    for (const std::wstring& entry : section) {
        const std::size_t equals = entry.find(L'=');
        if (equals == entry.npos) continue;
        const std::wstring_view key = std::wstring_view(entry).substr(0, equals);
        if (!EqualIgnoringCase(Trim(key), kKey)) continue;
        const std::wstring_view stored = Trim(std::wstring_view(entry).substr(equals + 1));
        const std::size_t count = std::min(stored.size(), flags.size());
        for (std::size_t i = 0; i < count; ++i) flags[i] = stored[i] == L'1' ? '1' : '0';
        break;
    }
    return flags;
}

}  // namespace

const std::string& DelimiterFlagStore::DefaultFlags() {
    static const std::string flags = std::string(15, '1') + std::string(10, '0') +
                                     std::string(83, '1') + std::string(140, '0') + "1101110";
    return flags;
}

void DelimiterFlagStore::Load(const Path& settings_file) {
    Load(settings_file, modSect::ProfileReader(settings_file));
}

void DelimiterFlagStore::Load(const Path& settings_file, const modSect::ProfileReader& settings) {
    settings_file_ = settings_file;
    flags_ = stored_ = FlagsIn(settings.ReadSection(kSection));
}

bool DelimiterFlagStore::Save() {
    std::string merged;
    const Result<void> saved =
        modSect::ChangeProfile(settings_file_, [&](modSect::Change& change) -> Result<void> {
            merged = FlagsIn(change.Section(kSection));
            for (std::size_t i = 0; i < merged.size(); ++i) {
                if (flags_[i] != stored_[i]) merged[i] = flags_[i];
            }
            change.Set(kSection, kKey, std::wstring(merged.begin(), merged.end()));
            return {};
        });
    if (saved) flags_ = stored_ = merged;
    return saved.has_value();
}

bool DelimiterFlagStore::Change(std::span<const Flag> changed) {
    DelimiterFlagStore in_file;
    in_file.Load(settings_file_);
    for (const Flag& flag : changed) {
        Set(flag.index, flag.value);
        in_file.Set(flag.index, flag.value);
    }
    return in_file.Save();
}

int DelimiterFlagStore::Get(int index) const {
    if (index < 1 || index > kCount) return 0;
    return flags_[static_cast<std::size_t>(index - 1)] == '1' ? 1 : 0;
}

void DelimiterFlagStore::Set(int index, int value) {
    if (index < 1 || index > kCount) return;
    flags_[static_cast<std::size_t>(index - 1)] = value != 0 ? '1' : '0';
}

unsigned char DelimiterCodeOfFlag(int index) {
    for (const CodeRange& range : kCodeRanges) {
        const int code = range.first_code + index - range.first_flag;
        if (code >= range.first_code && code <= range.last_code) {
            return static_cast<unsigned char>(code);
        }
    }
    return 0;
}

std::wstring BuildDelimiters(const DelimiterFlagStore& flags, const AnsiCodePage& page) {
    std::wstring delimiters;
    for (int index = 1; index <= DelimiterFlagStore::kDelimiterCount; ++index) {
        if (flags.Get(index) == 1) delimiters += page.ToUnicode(DelimiterCodeOfFlag(index));
    }
    return delimiters;
}

std::wstring WithoutLetters(std::wstring_view delimiters) {
    std::wstring rest(delimiters);
    std::erase_if(rest, [](wchar_t c) { return LowerChar(c) != UpperChar(c); });
    return rest;
}

}  // namespace wordhawk
