#pragma once

#include "cli/text_position.h"
#include "engine/check/web_addresses.h"

#include <condition_variable>
#include <cstddef>
#include <mutex>

namespace wordhawk {

/// What the blocks of one text hand on to one another while several threads check them: the
/// addresses known so far, and the line and column. Each block has its turn at both, in order.
class BlockOrder {
  public:
    struct State {
        AddressBlanker addresses;
        TextPosition position;
    };

    /// The turn of one block, which is over when the object is gone, had or not.
    class Turn {
      public:
        Turn(BlockOrder& order, std::size_t number) : order_(order), number_(number) {}
        ~Turn() { Pass(); }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

        /// Waits until all blocks before have passed.
        State& Wait() {
            std::unique_lock lock(order_.mutex_);
            order_.passed_on_.wait(lock, [&] { return order_.next_ == number_; });
            return order_.state_;
        }
        void Pass() {
            if (passed_) return;
            passed_ = true;
            Wait();
            const std::lock_guard lock(order_.mutex_);
            ++order_.next_;
            order_.passed_on_.notify_all();
        }

      private:
        BlockOrder& order_;
        const std::size_t number_;
        bool passed_ = false;
    };

  private:
    std::mutex mutex_;
    std::condition_variable passed_on_;
    std::size_t next_ = 0;
    State state_;
};

}  // namespace wordhawk
