#include "ui/framework/placement_store.h"

#include "app/program_folders.h"
#include "app/version.h"
#include "platform/modSect.h"
#include "platform/text.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr int kSmallestSane = 50;
constexpr int kLargestSane = 32000;
constexpr std::wstring_view kSection = L"Window";

bool IsSane(const SavedPlacement& placement) {
    const RECT& bounds = placement.bounds;
    const auto in_range = [](LONG value, LONG low, LONG high) {
        return value >= low && value <= high;
    };
    return in_range(bounds.left, -kLargestSane, kLargestSane) &&
           in_range(bounds.top, -kLargestSane, kLargestSane) &&
           in_range(bounds.right - bounds.left, kSmallestSane, kLargestSane) &&
           in_range(bounds.bottom - bounds.top, kSmallestSane, kLargestSane) &&
           in_range(placement.dpi, 48, 960);
}

}  // namespace

PlacementStore::PlacementStore()
    : PlacementStore(FromUtf8("Software\\" WORDHAWK_COMPANY "\\" WORDHAWK_PRODUCT)) {}

PlacementStore PlacementStore::Of(const ProgramState& state, const Path& program_folder) {
    const Path portable = PortableDataFolder(program_folder);
    const bool is_portable = !portable.empty() && state.DataFolder == portable;
    return is_portable ? PlacementStore(state.SettingsFile) : PlacementStore();
}

std::optional<LONG> PlacementStore::ReadNumber(const wchar_t* name) const {
    if (!file_.empty()) {
        const std::wstring text = modSect::ReadSetting(kSection, name, {}, file_);
        return text.empty() ? std::nullopt : std::optional<LONG>(NumberOrZero(text));
    }
    DWORD value = 0;
    DWORD size = sizeof value;
    if (RegGetValueW(HKEY_CURRENT_USER, key_.c_str(), name, RRF_RT_REG_DWORD, nullptr, &value,
                     &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    return static_cast<LONG>(value);
}

std::optional<SavedPlacement> PlacementStore::Load() const {
    const auto left = ReadNumber(L"Left");
    const auto top = ReadNumber(L"Top");
    const auto width = ReadNumber(L"Width");
    const auto height = ReadNumber(L"Height");
    if (!left || !top || !width || !height) return std::nullopt;
    if (*width < 0 || *width > kLargestSane || *height < 0 || *height > kLargestSane)
        return std::nullopt;
    SavedPlacement placement;
    placement.bounds = {*left, *top, *left + *width, *top + *height};
    placement.dpi = static_cast<int>(ReadNumber(L"Dpi").value_or(96));
    placement.maximized = ReadNumber(L"Maximized").value_or(0) != 0;
    return IsSane(placement) ? std::optional(placement) : std::nullopt;
}

void PlacementStore::Save(const SavedPlacement& placement) const {
    struct Value {
        const wchar_t* name;
        LONG number;
    };
    const RECT& bounds = placement.bounds;
    const Value values[] = {{L"Left", bounds.left},
                            {L"Top", bounds.top},
                            {L"Width", bounds.right - bounds.left},
                            {L"Height", bounds.bottom - bounds.top},
                            {L"Dpi", placement.dpi},
                            {L"Maximized", placement.maximized ? 1 : 0}};
    std::vector<modSect::KeyAndValue> lines;
    for (const Value& value : values) {
        lines.push_back({value.name, std::to_wstring(value.number)});
        const auto number = static_cast<DWORD>(value.number);
        if (file_.empty()) {
            RegSetKeyValueW(HKEY_CURRENT_USER, key_.c_str(), value.name, REG_DWORD, &number,
                            sizeof number);
        }
    }
    if (!file_.empty()) modSect::WriteSettings(kSection, lines, file_);
}

RECT WithinScreen(RECT bounds) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (!GetMonitorInfoW(MonitorFromRect(&bounds, MONITOR_DEFAULTTONEAREST), &info)) return bounds;
    const RECT& work = info.rcWork;
    const LONG width = std::min(bounds.right - bounds.left, work.right - work.left);
    const LONG height = std::min(bounds.bottom - bounds.top, work.bottom - work.top);
    const LONG left = std::clamp(bounds.left, work.left, work.right - width);
    const LONG top = std::clamp(bounds.top, work.top, work.bottom - height);
    return {left, top, left + width, top + height};
}

}  // namespace wordhawk
