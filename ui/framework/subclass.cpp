#include "ui/framework/subclass.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace wordhawk {

struct Subclass::Handlers {
    Subclass* owner;
    Filter filter;
    After after;
};

/// Whoever looks at a control's messages, oldest first. Never changed: a message on its way keeps
/// the chain that it began with, whatever its handlers install, remove or destroy.
struct Subclass::Chain {
    WNDPROC control_procedure;
    std::vector<std::shared_ptr<const Handlers>> handlers;

    LRESULT Pass(HWND control, UINT message, WPARAM wparam, LPARAM lparam,
                 std::size_t first) const {
        if (first == 0) return CallWindowProcW(control_procedure, control, message, wparam, lparam);
        const Handlers& next = *handlers[first - 1];
        if (next.filter) {
            if (const auto reply = next.filter(message, wparam, lparam)) return *reply;
        }
        const LRESULT result = Pass(control, message, wparam, lparam, first - 1);
        if (next.after) next.after(message);
        return result;
    }
};

/// What the control's user data points to until the control is destroyed. The system's own
/// SetWindowSubclass looks a property up for every message, which some systems do slowly.
struct Subclass::Slot {
    std::shared_ptr<const Chain> chain;

    static Slot* Of(HWND control) {
        return reinterpret_cast<Slot*>(GetWindowLongPtrW(control, GWLP_USERDATA));
    }
};

void Subclass::Install(HWND control, Filter filter, After after) {
    Remove();
    Slot* slot = Slot::Of(control);
    Chain chain{};
    if (slot != nullptr) {
        chain = *slot->chain;
    } else {
        chain.control_procedure =
            reinterpret_cast<WNDPROC>(GetWindowLongPtrW(control, GWLP_WNDPROC));
        slot = std::make_unique<Slot>().release();
        SetWindowLongPtrW(control, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(slot));
        SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    }
    handlers_ =
        std::make_shared<const Handlers>(Handlers{this, std::move(filter), std::move(after)});
    chain.handlers.push_back(handlers_);
    slot->chain = std::make_shared<const Chain>(std::move(chain));
    control_ = control;
}

void Subclass::Remove() {
    if (control_ == nullptr) return;
    Slot& slot = *Slot::Of(std::exchange(control_, nullptr));
    Chain chain = *slot.chain;
    std::erase(chain.handlers, handlers_);
    slot.chain = std::make_shared<const Chain>(std::move(chain));
    handlers_.reset();
}

LRESULT CALLBACK Subclass::Procedure(HWND control, UINT message, WPARAM wparam,
                                     LPARAM lparam) noexcept {
    Slot* slot = Slot::Of(control);
    const std::shared_ptr<const Chain> chain = slot->chain;
    if (message == WM_NCDESTROY) {
        for (const auto& handlers : chain->handlers) handlers->owner->control_ = nullptr;
        SetWindowLongPtrW(control, GWLP_WNDPROC,
                          reinterpret_cast<LONG_PTR>(chain->control_procedure));
        SetWindowLongPtrW(control, GWLP_USERDATA, 0);
        delete slot;
        return CallWindowProcW(chain->control_procedure, control, message, wparam, lparam);
    }
    try {
        return chain->Pass(control, message, wparam, lparam, chain->handlers.size());
    } catch (...) {
        return 0;
    }
}

}  // namespace wordhawk
