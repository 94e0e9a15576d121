#include "ui/main_window/button_drag.h"

#include <utility>

namespace wordhawk {

void ButtonDrag::Attach(NewSpellControls& controls, std::function<void()> rearranged) {
    controls_ = &controls;
    rearranged_ = std::move(rearranged);
    movable_ = {&controls.cmdChange, &controls.cmdChangeAll, &controls.cmdIgnore,
                &controls.cmdIgnoreAll};
    for (std::size_t i = 0; i < movable_.size(); ++i) {
        subclasses_[i].Install(movable_[i]->Handle(), [this, i](UINT message, WPARAM, LPARAM) {
            return OnMouse(*movable_[i], message);
        });
    }
}

std::optional<LRESULT> ButtonDrag::OnMouse(Button& button, UINT message) {
    switch (message) {
        case WM_RBUTTONDOWN:
            dragged_ = &button;
            SetCapture(button.Handle());
            SetCursor(LoadCursorW(nullptr, IDC_SIZEALL));
            return 0;
        case WM_RBUTTONUP: {
            const bool dropped = dragged_ == &button;
            if (GetCapture() == button.Handle()) ReleaseCapture();
            dragged_ = nullptr;
            POINT screen{};
            GetCursorPos(&screen);
            if (dropped) Drop(button, screen);
            return 0;
        }
        case WM_CAPTURECHANGED: dragged_ = nullptr; return {};
        default: return {};
    }
}

void ButtonDrag::Drop(Button& source, POINT screen) {
    for (const Button* target : movable_) {
        RECT bounds{};
        GetWindowRect(target->Handle(), &bounds);
        if (target == &source || !PtInRect(&bounds, screen)) continue;
        controls_->Swap(source, *target);
        rearranged_();
        return;
    }
}

}  // namespace wordhawk
