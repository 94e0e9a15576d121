#pragma once

#include "cli/output.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// Tasks that run on several threads while what they write comes out in their order.
struct SideBySide {
    /// What came of a task apart from what it wrote.
    struct Result {
        bool found = false;
        /// A message line, or nothing.
        std::string error_line;
        /// A message line for each dictionary file that could not be read.
        std::vector<std::string> unreadable;
    };
    /// Writes its result to `text`; `thread` counts from 0.
    using Task = std::function<Result(std::size_t thread, Output& text)>;

    std::size_t threads = 1;
    /// The next task, an empty one when there are no more; called in any thread, one at a time.
    std::function<Task()> next;
    /// Takes what a task wrote, piece by piece, each cut behind something that was written at once.
    std::function<void(std::string_view piece)> write;
    /// Called when all that a task wrote was taken.
    std::function<void(Result result)> finished;
    /// Called four times a second while a task is waited for.
    std::function<void()> waiting;

    /// Runs all tasks; everything but `next` and the tasks is called in the calling thread. A
    /// task that is far ahead of its turn waits, so that what is held back has a limit.
    void Run() const;
};

/// What went wrong, in words for people.
std::string DescribeException(const std::exception& error);

}  // namespace wordhawk
