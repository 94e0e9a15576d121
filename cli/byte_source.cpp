#include "cli/byte_source.h"

#include "cli/console.h"

namespace wordhawk {

Result<ByteSource> ByteSource::OpenFile(const Path& path) {
    ByteSource source;
    source.path_ = path;
    if (IsFolder(path)) return tl::unexpected(Error{L"is a folder", path});
    source.file_.reset(OpenForReading(path));
    if (!source.file_) {
        std::error_code error;
        const bool there = std::filesystem::exists(path, error);
        return tl::unexpected(Error{there ? L"cannot be opened" : L"no such file", path});
    }
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (!error) source.size_ = size;
    return source;
}

ByteSource ByteSource::StandardInput() { return {}; }

Result<void> ByteSource::Read(std::size_t size, std::string& out) {
    // One byte more than should be left, to meet the end: of a short text not all the room is made.
    if (size_ > bytes_read_ && size_ - bytes_read_ < size)
        size = static_cast<std::size_t>(size_ - bytes_read_) + 1;
    const std::size_t start = out.size();
    out.resize(start + size);
    std::size_t got = 0;
    bool failed = false;
    while (got < size && !at_end_ && !failed) {
        char* const to = out.data() + start + got;
        if (file_) {
            const std::size_t count = std::fread(to, 1, size - got, file_.get());
            failed = count < size - got && std::ferror(file_.get()) != 0;
            at_end_ = count < size - got;
            got += count;
        } else {
            const std::ptrdiff_t count = ReadStandardInput(to, size - got);
            failed = count < 0;
            at_end_ = count == 0;
            got += count > 0 ? static_cast<std::size_t>(count) : 0;
        }
    }
    out.resize(start + got);
    bytes_read_ += got;
    if (failed) return tl::unexpected(Error{L"reading failed", path_});
    return {};
}

bool ByteSource::Mark() {
    bytes_before_mark_ = bytes_read_;
    return file_ && std::fgetpos(file_.get(), &mark_) == 0;
}

bool ByteSource::GoBack() {
    if (!file_ || std::fsetpos(file_.get(), &mark_) != 0) return false;
    bytes_read_ = bytes_before_mark_;
    at_end_ = false;
    return true;
}

}  // namespace wordhawk
