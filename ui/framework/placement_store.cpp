#include "ui/framework/placement_store.h"

#include "app/version.h"
#include "platform/text.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr int kSmallestSane = 50;
constexpr int kLargestSane = 32000;

std::optional<LONG> ReadNumber(const std::wstring& key, const wchar_t* name) {
    DWORD value = 0;
    DWORD size = sizeof value;
    if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name, RRF_RT_REG_DWORD, nullptr, &value,
                     &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    return static_cast<LONG>(value);
}

void WriteNumber(const std::wstring& key, const wchar_t* name, LONG value) {
    const auto number = static_cast<DWORD>(value);
    RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name, REG_DWORD, &number, sizeof number);
}

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

std::optional<SavedPlacement> PlacementStore::Load() const {
    const auto left = ReadNumber(key_, L"Left");
    const auto top = ReadNumber(key_, L"Top");
    const auto width = ReadNumber(key_, L"Width");
    const auto height = ReadNumber(key_, L"Height");
    if (!left || !top || !width || !height) return std::nullopt;
    if (*width < 0 || *width > kLargestSane || *height < 0 || *height > kLargestSane)
        return std::nullopt;
    SavedPlacement placement;
    placement.bounds = {*left, *top, *left + *width, *top + *height};
    placement.dpi = static_cast<int>(ReadNumber(key_, L"Dpi").value_or(96));
    placement.maximized = ReadNumber(key_, L"Maximized").value_or(0) != 0;
    return IsSane(placement) ? std::optional(placement) : std::nullopt;
}

void PlacementStore::Save(const SavedPlacement& placement) const {
    WriteNumber(key_, L"Left", placement.bounds.left);
    WriteNumber(key_, L"Top", placement.bounds.top);
    WriteNumber(key_, L"Width", placement.bounds.right - placement.bounds.left);
    WriteNumber(key_, L"Height", placement.bounds.bottom - placement.bounds.top);
    WriteNumber(key_, L"Dpi", placement.dpi);
    WriteNumber(key_, L"Maximized", placement.maximized ? 1 : 0);
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
