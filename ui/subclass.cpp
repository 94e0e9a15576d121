#include "ui/subclass.h"

#include <commctrl.h>

#include <utility>

namespace wordhawk {

void Subclass::Install(HWND control, Filter filter, After after) {
    Remove();
    handlers_ = std::make_shared<const Handlers>(Handlers{std::move(filter), std::move(after)});
    // The object's address is an id that no other subclass of the control can have.
    if (SetWindowSubclass(control, Procedure, reinterpret_cast<UINT_PTR>(this),
                          reinterpret_cast<DWORD_PTR>(this))) {
        control_ = control;
    }
}

void Subclass::Remove() {
    if (control_ == nullptr) return;
    RemoveWindowSubclass(std::exchange(control_, nullptr), Procedure,
                         reinterpret_cast<UINT_PTR>(this));
}

LRESULT CALLBACK Subclass::Procedure(HWND control, UINT message, WPARAM wparam, LPARAM lparam,
                                     UINT_PTR, DWORD_PTR self_address) noexcept {
    auto* self = reinterpret_cast<Subclass*>(self_address);
    try {
        if (message == WM_NCDESTROY) {
            self->Remove();
            return DefSubclassProc(control, message, wparam, lparam);
        }
        // Kept alive here: a filter may end its own subclass, by destroying the control.
        const std::shared_ptr<const Handlers> handlers = self->handlers_;
        if (handlers->filter) {
            if (const auto reply = handlers->filter(message, wparam, lparam)) return *reply;
        }
        const LRESULT result = DefSubclassProc(control, message, wparam, lparam);
        if (handlers->after) handlers->after(message);
        return result;
    } catch (...) {
        return 0;
    }
}

}  // namespace wordhawk
