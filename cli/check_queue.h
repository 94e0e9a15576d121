#pragma once

#include "cli/file_checker.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace wordhawk {

/// The tasks of a check on several threads, in order: a small file is one, a large one, or a stream
/// of unknown length, is one for each of its blocks.
class CheckQueue {
  public:
    CheckQueue(const Program& program, const CheckOptions& options, const WordSet& ignored,
               Colour colour, std::size_t threads)
        : program_(program),
          options_(options),
          ignored_(ignored),
          colour_(colour),
          checkers_(threads) {}

    /// For one thread at a time. The tasks use the queue.
    SideBySide::Task Next();

    struct Doing {
        std::string name;
        int percent = -1;
    };
    /// What was last begun; for any thread.
    Doing Now() const;

  private:
    /// A text whose blocks are tasks of their own.
    struct Divided {
        explicit Divided(TextToCheck text)
            : name(std::move(text.name)),
              folder(std::move(text.folder)),
              blocks(std::move(*text.blocks)) {}

        const std::string name;
        const Path folder;
        TextBlocks blocks;
        BlockOrder order;
        std::size_t count = 0;  // of blocks that became tasks
    };

    SideBySide::Task WholeTask(TextToCheck text);
    SideBySide::Task BlockTask(RawBlock block);
    FileChecker& Checker(std::size_t thread);
    void SetNow(Doing doing);

    const Program& program_;
    const CheckOptions& options_;
    const WordSet& ignored_;
    const Colour colour_;
    std::vector<std::unique_ptr<FileChecker>> checkers_;  // by thread
    std::size_t next_file_ = 0;
    std::shared_ptr<Divided> divided_;
    mutable std::mutex mutex_;
    Doing now_;
};

}  // namespace wordhawk
