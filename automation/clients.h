#pragma once

#include "automation/client_process.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>

namespace wordhawk {

/// Who still needs the server: every object that a client holds, and every lock. Those of a process
/// that has ended do not count. Called from any thread.
class Clients {
  public:
    using Process = std::shared_ptr<const ClientProcess>;
    /// `on_change` is called, on any thread, when there may be none left.
    explicit Clients(std::function<void()> on_change) : on_change_(std::move(on_change)) {}

    /// The process of the call being answered.
    Process ThisCaller() const { return ClientProcess::OfThisCall(on_change_); }

    using Hold = std::uint64_t;
    Hold Add(Process process);
    void Remove(Hold hold);
    /// LockServer: each unlocking takes back one locking, by the same process if there is one.
    void Lock(Process process);
    void Unlock(const Process& process);

    bool Any() const;
    /// There was a client at some time.
    bool HadAny() const;

  private:
    const std::function<void()> on_change_;
    mutable std::mutex mutex_;
    Hold last_ = 0;
    std::map<Hold, Process> objects_;
    std::multimap<DWORD, Process> locks_;
};

}  // namespace wordhawk
