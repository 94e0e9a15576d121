#include "platform/partial_file.h"

#include "platform/win32/errors.h"
#include "platform/win32/handle.h"

#include <algorithm>

namespace wordhawk {

struct PartialFile::Opened {
    FileHandle file;
    std::uint64_t size;
};

PartialFile::PartialFile(std::unique_ptr<Opened> opened) : opened_(std::move(opened)) {}
PartialFile::PartialFile(PartialFile&&) noexcept = default;
PartialFile& PartialFile::operator=(PartialFile&&) noexcept = default;
PartialFile::~PartialFile() = default;

std::optional<PartialFile> PartialFile::Open(const Path& path) {
    FileHandle file(CreateFileW(SystemPath(path).c_str(), GENERIC_READ,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, 0, nullptr));
    LARGE_INTEGER size{};
    if (!file || GetFileType(file.Get()) != FILE_TYPE_DISK || !GetFileSizeEx(file.Get(), &size))
        return std::nullopt;
    return PartialFile(std::make_unique<Opened>(
        Opened{std::move(file), static_cast<std::uint64_t>(size.QuadPart)}));
}

std::uint64_t PartialFile::Size() const { return opened_->size; }

std::size_t PartialFile::ReadAt(std::uint64_t offset, std::span<char> room) const {
    constexpr std::size_t kLargestRead = 1u << 30;
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(offset);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    DWORD got = 0;
    const auto wanted = static_cast<DWORD>(std::min(room.size(), kLargestRead));
    return ReadFile(opened_->file.Get(), room.data(), wanted, &got, &place) ? got : 0;
}

}  // namespace wordhawk
