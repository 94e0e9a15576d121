#pragma once

#include "cli/output.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace wordhawk {

/// Numbered jobs that run on several threads while what they write comes out in their order.
struct SideBySide {
    /// Does job `index` and writes its result to `text`.
    using Job = std::function<void(std::size_t index, Output& text)>;

    std::size_t jobs = 0;
    std::size_t threads = 1;
    /// Makes what a thread does its jobs with; called in that thread.
    std::function<Job()> make_worker;
    /// Takes what a job wrote, piece by piece, each cut behind something that was written at once.
    std::function<void(std::string_view piece)> write;
    /// Called when all that job `index` wrote was taken; `failure` is what an exception said, else
    /// empty.
    std::function<void(std::size_t index, std::string failure)> finished;
    /// Called four times a second while job `index` is waited for.
    std::function<void(std::size_t index)> waiting;

    /// Runs all jobs; everything but make_worker and the jobs is called in the calling thread. A
    /// job that is far ahead of its turn waits, so that what is held back has a limit.
    void Run() const;
};

/// What went wrong, in words for people.
std::string DescribeException(const std::exception& error);

}  // namespace wordhawk
