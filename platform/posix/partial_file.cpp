#include "platform/partial_file.h"

#include "platform/posix/file_descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wordhawk {

struct PartialFile::Opened {
    FileDescriptor file;
    std::uint64_t size;
};

PartialFile::PartialFile(std::unique_ptr<Opened> opened) : opened_(std::move(opened)) {}
PartialFile::PartialFile(PartialFile&&) noexcept = default;
PartialFile& PartialFile::operator=(PartialFile&&) noexcept = default;
PartialFile::~PartialFile() = default;

std::optional<PartialFile> PartialFile::Open(const Path& path) {
    FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return PartialFile(std::make_unique<Opened>(
        Opened{std::move(file), static_cast<std::uint64_t>(status.st_size)}));
}

std::uint64_t PartialFile::Size() const { return opened_->size; }

std::size_t PartialFile::ReadAt(std::uint64_t offset, std::span<char> room) const {
    const ssize_t got =
        pread(opened_->file.Get(), room.data(), room.size(), static_cast<off_t>(offset));
    return got > 0 ? static_cast<std::size_t>(got) : 0;
}

}  // namespace wordhawk
