#include "cli/side_by_side.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <new>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace wordhawk {
namespace {

constexpr std::size_t kMostHeldBack = std::size_t{1} << 20;  // of one task
constexpr std::size_t kMostAhead = 4;                        // tasks, for each thread

/// What one task wrote and nobody took yet.
struct Slot {
    std::string text;
    SideBySide::Result result;
    bool done = false;
};

class RunningTasks {
  public:
    explicit RunningTasks(const SideBySide& plan) : plan_(plan) {}
    ~RunningTasks() {
        const std::lock_guard lock(mutex_);
        dropped_ = ended_ = true;
        changed_.notify_all();
    }
    RunningTasks(const RunningTasks&) = delete;
    RunningTasks& operator=(const RunningTasks&) = delete;

    void Start() {
        try {
            while (threads_.size() < plan_.threads)
                threads_.emplace_back([this, thread = threads_.size()] { Work(thread); });
        } catch (const std::system_error&) {
            if (threads_.empty()) throw;  // with one thread there is only less haste
        }
    }

    void TakeAll() {
        while (WaitForFirst()) {
            for (bool done = false; !done;) {
                const std::string piece = NextPiece(done);
                if (!piece.empty()) plan_.write(piece);
            }
            std::unique_lock lock(mutex_);
            SideBySide::Result result = std::move(slots_.front().result);
            slots_.pop_front();
            changed_.notify_all();
            lock.unlock();
            plan_.finished(std::move(result));
        }
    }

  private:
    void Work(std::size_t thread) {
        while (true) {
            SideBySide::Task task;
            Slot* const slot = Claim(task);
            if (slot == nullptr) return;
            SideBySide::Result result;
            try {
                Output text([&](std::string_view piece) { HandOver(*slot, piece); });
                result = task(thread, text);
                text.Flush();
            } catch (const std::exception& error) {
                result.error_line = MessageLine(DescribeException(error));
            }
            task = nullptr;
            const std::lock_guard lock(mutex_);
            slot->result = std::move(result);
            slot->done = true;
            changed_.notify_all();
        }
    }

    /// Null when there are no more tasks.
    Slot* Claim(SideBySide::Task& task) {
        const std::lock_guard one_at_a_time(claiming_);
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return ended_ || slots_.size() < kMostAhead * plan_.threads; });
        if (ended_) return nullptr;
        lock.unlock();
        std::string failure;
        try {
            task = plan_.next();
        } catch (const std::exception& error) {
            failure = MessageLine(DescribeException(error));
        }
        lock.lock();
        ended_ = ended_ || !task;
        changed_.notify_all();
        if (!task && failure.empty()) return nullptr;
        Slot& slot = slots_.emplace_back();
        if (task) return &slot;
        slot.result.error_line = std::move(failure);
        slot.done = true;
        return nullptr;
    }

    void HandOver(Slot& slot, std::string_view piece) {
        std::unique_lock lock(mutex_);
        slot.text += piece;
        changed_.notify_all();
        // The task whose turn it is never waits long: its text is taken as it comes.
        changed_.wait(lock, [&] { return dropped_ || slot.text.size() < kMostHeldBack; });
    }

    template <class Condition>
    void WaitUntil(std::unique_lock<std::mutex>& lock, Condition&& condition) {
        while (!condition()) {
            if (changed_.wait_for(lock, std::chrono::milliseconds(250)) ==
                std::cv_status::timeout) {
                lock.unlock();
                plan_.waiting();
                lock.lock();
            }
        }
    }

    /// False when everything was taken and nothing more comes.
    bool WaitForFirst() {
        std::unique_lock lock(mutex_);
        WaitUntil(lock, [&] { return !slots_.empty() || ended_; });
        return !slots_.empty();
    }

    std::string NextPiece(bool& done) {
        std::unique_lock lock(mutex_);
        Slot& slot = slots_.front();
        WaitUntil(lock, [&] { return !slot.text.empty() || slot.done; });
        std::string piece = std::exchange(slot.text, {});
        done = slot.done;
        changed_.notify_all();
        return piece;
    }

    const SideBySide& plan_;
    std::mutex claiming_;
    std::mutex mutex_;
    std::condition_variable changed_;
    /// Of the tasks that were begun and not yet taken, in order; never moved in memory.
    std::deque<Slot> slots_;
    bool ended_ = false;
    /// Nobody takes anything more, as taking failed.
    bool dropped_ = false;
    std::vector<std::jthread> threads_;
};

}  // namespace

void SideBySide::Run() const {
    RunningTasks run(*this);
    run.Start();
    run.TakeAll();
}

std::string DescribeException(const std::exception& error) {
    return dynamic_cast<const std::bad_alloc*>(&error) != nullptr ? "out of memory" : error.what();
}

}  // namespace wordhawk
