#include "platform/mapped_file.h"

#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

namespace wordhawk {

struct MappedFile::Mapping {
    Mapping(const void* start, std::size_t size) : start(start), size(size) {}
    Mapping(const Mapping&) = delete;
    Mapping& operator=(const Mapping&) = delete;
    ~Mapping() { UnmapViewOfFile(start); }

    const void* start;
    std::size_t size;
};

MappedFile::MappedFile(std::unique_ptr<Mapping> mapping) : mapping_(std::move(mapping)) {}
MappedFile::MappedFile(MappedFile&&) noexcept = default;
MappedFile& MappedFile::operator=(MappedFile&&) noexcept = default;
MappedFile::~MappedFile() = default;

Result<MappedFile> MappedFile::Open(const Path& path) {
    const auto failed = [&] { return tl::unexpected(ErrorFromCode(GetLastError(), path)); };
    const FileHandle file(CreateFileW(SystemPath(path).c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file) return failed();
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.Get(), &size)) return failed();
    // An empty file cannot be mapped: the system says so here.
    const KernelHandle section(
        CreateFileMappingW(file.Get(), nullptr, PAGE_READONLY, 0, 0, nullptr));
    if (!section) return failed();
    const void* const start = MapViewOfFile(section.Get(), FILE_MAP_READ, 0, 0, 0);
    if (start == nullptr) return failed();
    return MappedFile(std::make_unique<Mapping>(start, static_cast<std::size_t>(size.QuadPart)));
}

std::string_view MappedFile::Bytes() const {
    return {static_cast<const char*>(mapping_->start), mapping_->size};
}

}  // namespace wordhawk
