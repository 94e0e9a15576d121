#pragma once

#include "automation/client_process.h"
#include "engine/cSpellit.h"
#include "platform/win32/handle.h"

#include <deque>
#include <functional>
#include <memory>
#include <mutex>

namespace wordhawk {

/// One call of SpellCheck on its way from the thread that answers the caller to the thread that
/// owns the windows, and back.
struct CheckJob {
    SpellCheckArguments arguments;
    long result = 0;
    /// S_OK, or why there is no result.
    HRESULT outcome = E_FAIL;
};

/// Calls of SpellCheck wait here for their turn: one window, one check at a time, in the order in
/// which they came.
class CheckQueue {
  public:
    /// `wake` is called, on any thread, when the windows' thread has something to look at.
    explicit CheckQueue(std::function<void()> wake) : wake_(std::move(wake)) {}

    /// Called by the answering thread: waits until the job is done. False: its client has ended
    /// first, and the job is not to be looked at any more.
    bool Run(const std::shared_ptr<CheckJob>& job, const ClientProcess& client);

    // Called by the windows' thread.
    /// The next job whose client still waits; null when there is none. It is the current one until
    /// Finish.
    std::shared_ptr<CheckJob> Take();
    void Finish();
    /// The client of the current job has ended.
    bool CurrentIsAbandoned() const;
    bool Empty() const;

  private:
    struct Entry {
        std::shared_ptr<CheckJob> job;
        KernelHandle done;
        bool abandoned = false;
    };

    const std::function<void()> wake_;
    mutable std::mutex mutex_;
    std::deque<std::shared_ptr<Entry>> waiting_;
    std::shared_ptr<Entry> current_;
};

}  // namespace wordhawk
