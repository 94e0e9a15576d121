#pragma once

#include "platform/win32/win.h"

#include <functional>
#include <memory>
#include <optional>

namespace wordhawk {

/// Looks at the messages of a control before the control does, for as long as the object lives or
/// the control exists. Several may look at the same control: the newest looks first. The control's
/// user data (GWLP_USERDATA) is taken for it.
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
    struct Handlers;
    struct Chain;
    struct Slot;

    static LRESULT CALLBACK Procedure(HWND control, UINT message, WPARAM wparam,
                                      LPARAM lparam) noexcept;

    HWND control_ = nullptr;
    std::shared_ptr<const Handlers> handlers_;
};

}  // namespace wordhawk
