#pragma once

#include "platform/win32/handle.h"

#include <functional>
#include <memory>

namespace wordhawk {

/// The process at the other end of a call. The system tells a server late, or never, that a client
/// was killed; this does at once.
class ClientProcess {
  public:
    /// The process whose call this thread is answering; `on_end` is called, on some other thread,
    /// when it ends. A process that cannot be found out (on another machine, say) counts as
    /// running.
    static std::shared_ptr<const ClientProcess> OfThisCall(const std::function<void()>& on_end);

    ClientProcess() = default;
    ~ClientProcess();
    ClientProcess(const ClientProcess&) = delete;
    ClientProcess& operator=(const ClientProcess&) = delete;

    /// 0 when not known.
    DWORD Id() const { return id_; }
    bool HasEnded() const;
    /// To be waited for; null when not known.
    HANDLE Handle() const { return process_.Get(); }

  private:
    DWORD id_ = 0;
    KernelHandle process_;
    HANDLE wait_ = nullptr;
    std::function<void()> on_end_;
};

}  // namespace wordhawk
