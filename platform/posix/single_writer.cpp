#include "platform/single_writer.h"

#include "platform/posix/errors.h"
#include "platform/posix/file_descriptor.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

namespace wordhawk {

/// The lock belongs to this opening of the file, so threads of one program exclude each other too.
struct SingleWriter::Handle {
    FileDescriptor file;
};

Result<SingleWriter> SingleWriter::Acquire(const Path& folder) {
    const Path lock = folder / ".wordhawk.lock";
    FileDescriptor file(open(lock.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
    if (!file) {
        const int code = errno;
        if (code == ENOENT) return tl::unexpected(Error{L"the folder does not exist", folder});
        return tl::unexpected(ErrorFromErrno(code, folder));
    }
    while (flock(file.Get(), LOCK_EX) != 0) {
        if (errno != EINTR) return tl::unexpected(ErrorFromErrno(errno, folder));
    }
    return SingleWriter(std::make_unique<Handle>(Handle{std::move(file)}));
}

SingleWriter::SingleWriter(std::unique_ptr<Handle> handle) : handle_(std::move(handle)) {}
SingleWriter::SingleWriter(SingleWriter&&) noexcept = default;
SingleWriter& SingleWriter::operator=(SingleWriter&&) noexcept = default;
SingleWriter::~SingleWriter() = default;

}  // namespace wordhawk
