#include "cli/side_by_side.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <new>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace wordhawk {
namespace {

constexpr std::size_t kMostHeldBack = std::size_t{1} << 20;  // of one job

/// What one job wrote and nobody took yet.
struct Slot {
    std::string text;
    std::string failure;
    bool done = false;
};

class RunningJobs {
  public:
    explicit RunningJobs(const SideBySide& plan) : plan_(plan), slots_(plan.jobs) {}

    void Start() {
        try {
            while (threads_.size() < plan_.threads) threads_.emplace_back([this] { Work(); });
        } catch (const std::system_error&) {
            if (threads_.empty()) throw;  // with one thread there is only less haste
        }
    }

    void TakeAll() {
        for (std::size_t i = 0; i < slots_.size(); ++i) {
            for (bool done = false; !done;) {
                const std::string piece = NextPiece(i, done);
                if (!piece.empty()) plan_.write(piece);
            }
            plan_.finished(i, std::move(slots_[i].failure));
        }
    }

  private:
    void Work() {
        SideBySide::Job job;
        for (std::size_t i = next_++; i < slots_.size(); i = next_++) {
            Slot& slot = slots_[i];
            std::string failure;
            try {
                Output text([&](std::string_view piece) { HandOver(slot, piece); });
                if (!job) job = plan_.make_worker();
                job(i, text);
                text.Flush();
            } catch (const std::exception& error) {
                failure = DescribeException(error);
                job = nullptr;
            }
            const std::lock_guard lock(mutex_);
            slot.failure = std::move(failure);
            slot.done = true;
            changed_.notify_all();
        }
    }

    void HandOver(Slot& slot, std::string_view piece) {
        std::unique_lock lock(mutex_);
        slot.text += piece;
        changed_.notify_all();
        // The job whose turn it is never waits long: its text is taken as it comes.
        changed_.wait(lock, [&] { return slot.text.size() < kMostHeldBack; });
    }

    std::string NextPiece(std::size_t i, bool& done) {
        Slot& slot = slots_[i];
        std::unique_lock lock(mutex_);
        while (slot.text.empty() && !slot.done) {
            if (changed_.wait_for(lock, std::chrono::milliseconds(250)) ==
                std::cv_status::timeout) {
                lock.unlock();
                plan_.waiting(i);
                lock.lock();
            }
        }
        std::string piece = std::exchange(slot.text, {});
        done = slot.done;
        changed_.notify_all();
        return piece;
    }

    const SideBySide& plan_;
    std::vector<Slot> slots_;
    std::atomic<std::size_t> next_{0};
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::jthread> threads_;
};

}  // namespace

void SideBySide::Run() const {
    RunningJobs run(*this);
    run.Start();
    run.TakeAll();
}

std::string DescribeException(const std::exception& error) {
    return dynamic_cast<const std::bad_alloc*>(&error) != nullptr ? "out of memory" : error.what();
}

}  // namespace wordhawk
