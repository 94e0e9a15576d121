#pragma once

#include "platform/win32/win.h"

#include <functional>
#include <memory>
#include <optional>

namespace wordhawk {

/// Looks at the messages of a control before the control does, for as long as the object lives or
/// the control exists.
class Subclass {
  public:
    /// An answer keeps the message from the control; none lets it through.
    using Filter =
        std::function<std::optional<LRESULT>(UINT message, WPARAM wparam, LPARAM lparam)>;
    /// Called after the control handled a message.
    using After = std::function<void(UINT message)>;

    Subclass() = default;
    Subclass(const Subclass&) = delete;
    Subclass& operator=(const Subclass&) = delete;
    ~Subclass() { Remove(); }

    void Install(HWND control, Filter filter, After after = {});
    void Remove();
    /// Whether the control is still there.
    bool Installed() const { return control_ != nullptr; }

  private:
    static LRESULT CALLBACK Procedure(HWND control, UINT message, WPARAM wparam, LPARAM lparam,
                                      UINT_PTR id, DWORD_PTR self) noexcept;

    struct Handlers {
        Filter filter;
        After after;
    };

    HWND control_ = nullptr;
    std::shared_ptr<const Handlers> handlers_;
};

}  // namespace wordhawk
