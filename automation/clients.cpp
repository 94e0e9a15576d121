#include "automation/clients.h"

#include <algorithm>
#include <utility>

namespace wordhawk {

Clients::Hold Clients::Add(Process process) {
    const std::lock_guard lock(mutex_);
    objects_.emplace(++last_, std::move(process));
    return last_;
}

void Clients::Remove(Hold hold) {
    Process removed;
    {
        const std::lock_guard lock(mutex_);
        const auto found = objects_.find(hold);
        if (found == objects_.end()) return;
        // Let go outside the lock: that waits for a callback, which may ask us.
        removed = std::move(found->second);
        objects_.erase(found);
    }
    on_change_();
}

void Clients::Lock(Process process) {
    const std::lock_guard lock(mutex_);
    ++last_;
    const DWORD id = process->Id();
    locks_.emplace(id, std::move(process));
}

void Clients::Unlock(const Process& process) {
    Process removed;
    {
        const std::lock_guard lock(mutex_);
        auto found = locks_.find(process->Id());
        if (found == locks_.end()) found = locks_.begin();
        if (found == locks_.end()) return;
        removed = std::move(found->second);
        locks_.erase(found);
    }
    on_change_();
}

bool Clients::Any() const {
    const auto runs = [](const auto& entry) { return !entry.second->HasEnded(); };
    const std::lock_guard lock(mutex_);
    return std::any_of(objects_.begin(), objects_.end(), runs) ||
           std::any_of(locks_.begin(), locks_.end(), runs);
}

bool Clients::HadAny() const {
    const std::lock_guard lock(mutex_);
    return last_ != 0;
}

}  // namespace wordhawk
