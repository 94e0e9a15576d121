#include "cli/check_queue.h"

#include "cli/visible_text.h"

#include <utility>

namespace wordhawk {
namespace {

/// Less than this is checked faster than it is divided.
constexpr std::uint64_t kSmallFile = std::uint64_t{1} << 20;

}  // namespace

SideBySide::Task CheckQueue::Next() {
    while (true) {
        if (divided_) {
            auto block = divided_->blocks.Next();
            SetNow({divided_->name, divided_->blocks.PercentRead()});
            if (block && !block->Empty()) return BlockTask(std::move(*block));
            const std::shared_ptr<Divided> finished = std::exchange(divided_, nullptr);
            if (!block) return WholeTask({finished->name, {}, tl::unexpected(block.error())});
        }
        if (next_file_ == options_.files.size()) return {};
        TextToCheck text = TextToCheck::Open(options_.files[next_file_++]);
        const std::uint64_t size = text.blocks ? text.blocks->Size() : 1;
        if (size != 0 && size < kSmallFile) {
            SetNow({text.name, static_cast<int>(next_file_ * 100 / options_.files.size())});
            return WholeTask(std::move(text));
        }
        divided_ = std::make_shared<Divided>(std::move(text));
    }
}

SideBySide::Task CheckQueue::WholeTask(TextToCheck text) {
    const auto shared = std::make_shared<TextToCheck>(std::move(text));
    return [this, shared](std::size_t thread, Output& out) {
        try {
            return Checker(thread).Check(*shared, out, nullptr);
        } catch (const std::exception& error) {
            checkers_[thread].reset();
            return SideBySide::Result{
                false, MessageLine(shared->name, DescribeException(error)), {}};
        }
    };
}

SideBySide::Task CheckQueue::BlockTask(RawBlock block) {
    const auto shared = std::make_shared<RawBlock>(std::move(block));
    return [this, shared, text = divided_, number = divided_->count++](std::size_t thread,
                                                                       Output& out) {
        BlockOrder::Turn turn(text->order, number);
        try {
            return Checker(thread).CheckBlock(text->name, text->folder, *shared, turn, out);
        } catch (const std::exception& error) {
            checkers_[thread].reset();
            return SideBySide::Result{false, MessageLine(text->name, DescribeException(error)), {}};
        }
    };
}

FileChecker& CheckQueue::Checker(std::size_t thread) {
    std::unique_ptr<FileChecker>& checker = checkers_[thread];
    if (!checker) checker = std::make_unique<FileChecker>(program_, options_, ignored_, colour_);
    return *checker;
}

void CheckQueue::SetNow(Doing doing) {
    const std::lock_guard lock(mutex_);
    now_ = std::move(doing);
}

CheckQueue::Doing CheckQueue::Now() const {
    const std::lock_guard lock(mutex_);
    return {VisibleText(now_.name), now_.percent};
}

}  // namespace wordhawk
