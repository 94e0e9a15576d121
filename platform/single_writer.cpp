#include "platform/single_writer.h"

#include "platform/lock_file.h"
#include "platform/replace_file.h"

#include <algorithm>
#include <string>
#include <thread>

namespace wordhawk {
namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr milliseconds kShortestPause{1};
constexpr milliseconds kLongestPause{32};

Error HeldTooLong(const Path& folder, milliseconds waited) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(waited).count();
    return {L"another program has kept this folder locked for " + std::to_wstring(seconds) +
                L" seconds; nothing was changed, try again when it is done",
            folder};
}

Path FolderOf(const Path& path) { return path.has_parent_path() ? path.parent_path() : Path("."); }

}  // namespace

Result<SingleWriter> SingleWriter::Acquire(const Path& folder, milliseconds longest_wait) {
    const Clock::time_point deadline = Clock::now() + longest_wait;
    std::unique_ptr<LockFile> file;
    for (milliseconds pause = kShortestPause;;) {
        if (!file) {
            Result<std::unique_ptr<LockFile>> opened = OpenLockFile(folder);
            if (!opened) return tl::unexpected(opened.error());
            file = std::move(*opened);
        }
        const Result<bool> locked = file->TryLock();
        if (!locked) return tl::unexpected(locked.error());
        if (*locked && file->IsInPlace()) {
            SweepTemporaries(folder);
            return SingleWriter(std::move(file));
        }
        if (*locked) file.reset();
        if (Clock::now() >= deadline) return tl::unexpected(HeldTooLong(folder, longest_wait));
        // Asked again and again: a wait in the system knows no time limit, and one under Wine does
        // not hear of locks that native programs let go.
        std::this_thread::sleep_for(pause);
        pause = std::min(pause * 2, kLongestPause);
    }
}

SingleWriter::SingleWriter(std::unique_ptr<LockFile> file) : file_(std::move(file)) {}
SingleWriter::SingleWriter(SingleWriter&&) noexcept = default;
SingleWriter& SingleWriter::operator=(SingleWriter&&) noexcept = default;
SingleWriter::~SingleWriter() = default;

Result<LockedFile> LockForChange(const Path& path) {
    for (;;) {
        Result<Path> target = FollowLinks(path);
        if (!target) return tl::unexpected(target.error());
        Result<SingleWriter> lock = SingleWriter::Acquire(FolderOf(*target));
        if (!lock) return tl::unexpected(lock.error());
        // The link may have been laid to another file while we waited.
        const Result<Path> now = FollowLinks(path);
        if (now && now->native() == target->native())
            return LockedFile{std::move(*lock), std::move(*target)};
    }
}

}  // namespace wordhawk
