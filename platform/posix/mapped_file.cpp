#include "platform/mapped_file.h"

#include "platform/posix/errors.h"
#include "platform/posix/file_descriptor.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <cerrno>

namespace wordhawk {

struct MappedFile::Mapping {
    Mapping(void* start, std::size_t size) : start(start), size(size) {}
    Mapping(const Mapping&) = delete;
    Mapping& operator=(const Mapping&) = delete;
    ~Mapping() { munmap(start, size); }

    void* start;
    std::size_t size;
};

MappedFile::MappedFile(std::unique_ptr<Mapping> mapping) : mapping_(std::move(mapping)) {}
MappedFile::MappedFile(MappedFile&&) noexcept = default;
MappedFile& MappedFile::operator=(MappedFile&&) noexcept = default;
MappedFile::~MappedFile() = default;

Result<MappedFile> MappedFile::Open(const Path& path) {
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file) return tl::unexpected(ErrorFromErrno(errno, path));
    struct stat status {};
    if (fstat(file.Get(), &status) != 0) return tl::unexpected(ErrorFromErrno(errno, path));
    if (!S_ISREG(status.st_mode)) return tl::unexpected(ErrorFromErrno(EISDIR, path));
    if (status.st_size == 0) return tl::unexpected(ErrorFromErrno(ENODATA, path));
    const auto size = static_cast<std::size_t>(status.st_size);
    void* const start = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.Get(), 0);
    if (start == MAP_FAILED) return tl::unexpected(ErrorFromErrno(errno, path));
    return MappedFile(std::make_unique<Mapping>(start, size));
}

std::string_view MappedFile::Bytes() const {
    return {static_cast<const char*>(mapping_->start), mapping_->size};
}

}  // namespace wordhawk
