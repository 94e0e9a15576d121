#include "engine/session/replacements.h"

#include "app/modRegs.h"
#include "platform/text.h"

#include <algorithm>

namespace wordhawk {

void RecentChanges::LoadRecentChanges(const modSect::ProfileFile& settings_file) {
    const std::vector<std::wstring> entries =
        modSect::ReadSection(settings_file, modRegs::kRecentChangesSection);
    if (entries.empty() || entries.front().empty()) return;
    for (std::size_t i = std::min(entries.size(), kMaximum); i-- > 0;) {
        // Without "=" the whole entry is the text.
        items_.insert(items_.begin(), entries[i].substr(entries[i].find(L'=') + 1));
    }
}

void RecentChanges::RememberReplacement(std::wstring_view text) {
    if (text.empty()) return;
    const std::wstring newest(text);
    const auto same = std::find_if(items_.begin(), items_.end(), [&](const std::wstring& item) {
        return EqualIgnoringCase(item, newest);
    });
    if (same != items_.end()) items_.erase(same);
    items_.insert(items_.begin(), newest);
    if (items_.size() > kMaximum) items_.erase(items_.begin() + kMaximum);
}

bool RecentChanges::SaveRecentChanges(const modSect::ProfileFile& settings_file) const {
    std::vector<modSect::KeyAndValue> values;
    for (std::size_t i = 0; i < items_.size() && i < kMaximum; ++i)
        values.push_back({std::to_wstring(i), items_[i]});
    return values.empty() ||
           modSect::WriteSettings(modRegs::kRecentChangesSection, values, settings_file);
}

}  // namespace wordhawk
