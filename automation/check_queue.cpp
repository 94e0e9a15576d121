#include "automation/check_queue.h"

#include <utility>

namespace wordhawk {

bool CheckQueue::Run(const std::shared_ptr<CheckJob>& job, const ClientProcess& client) {
    const auto entry = std::make_shared<Entry>();
    entry->job = job;
    entry->done = KernelHandle(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    if (!entry->done) {
        job->outcome = E_OUTOFMEMORY;
        return true;
    }
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(entry);
    }
    wake_();
    const HANDLE handles[] = {entry->done.Get(), client.Handle()};
    const DWORD count = client.Handle() == nullptr ? 1 : 2;
    if (WaitForMultipleObjects(count, handles, FALSE, INFINITE) == WAIT_OBJECT_0) return true;
    {
        const std::lock_guard lock(mutex_);
        entry->abandoned = true;
    }
    wake_();
    return false;
}

std::shared_ptr<CheckJob> CheckQueue::Take() {
    const std::lock_guard lock(mutex_);
    while (!waiting_.empty()) {
        current_ = std::move(waiting_.front());
        waiting_.pop_front();
        if (!current_->abandoned) return current_->job;
        current_.reset();
    }
    return nullptr;
}

void CheckQueue::Finish() {
    const std::lock_guard lock(mutex_);
    if (!current_) return;
    SetEvent(current_->done.Get());
    current_.reset();
}

bool CheckQueue::CurrentIsAbandoned() const {
    const std::lock_guard lock(mutex_);
    return current_ && current_->abandoned;
}

bool CheckQueue::Empty() const {
    const std::lock_guard lock(mutex_);
    return waiting_.empty() && !current_;
}

}  // namespace wordhawk
