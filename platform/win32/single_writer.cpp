#include "platform/single_writer.h"

#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

namespace wordhawk {

/// The lock belongs to this opening of the file; closing it lets go, also when the process dies.
struct SingleWriter::Handle {
    FileHandle file;
};

Result<SingleWriter> SingleWriter::Acquire(const Path& folder) {
    const Path lock = folder / L".wordhawk.lock";
    FileHandle file(CreateFileW(SystemPath(lock).c_str(), GENERIC_READ | GENERIC_WRITE,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN, nullptr));
    if (!file) return tl::unexpected(ErrorFromCode(GetLastError(), folder));
    OVERLAPPED from_the_start{};
    if (!LockFileEx(file.Get(), LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &from_the_start)) {
        return tl::unexpected(ErrorFromCode(GetLastError(), folder));
    }
    return SingleWriter(std::make_unique<Handle>(Handle{std::move(file)}));
}

SingleWriter::SingleWriter(std::unique_ptr<Handle> handle) : handle_(std::move(handle)) {}
SingleWriter::SingleWriter(SingleWriter&&) noexcept = default;
SingleWriter& SingleWriter::operator=(SingleWriter&&) noexcept = default;
SingleWriter::~SingleWriter() = default;

}  // namespace wordhawk
