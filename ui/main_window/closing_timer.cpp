#include "ui/main_window/closing_timer.h"

namespace wordhawk {
namespace {

constexpr UINT kMilliseconds = 100;

}  // namespace

void ClosingTimer::SetEnabled(HWND form, bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    if (enabled) {
        SetTimer(form, kId, kMilliseconds, nullptr);
    } else {
        KillTimer(form, kId);
    }
}

}  // namespace wordhawk
