#pragma once

#include <unistd.h>

#include <utility>

namespace wordhawk {

/// Owns an open file descriptor; -1 when it owns none.
class FileDescriptor {
  public:
    explicit FileDescriptor(int descriptor = -1) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileDescriptor() { Close(); }

    explicit operator bool() const { return descriptor_ >= 0; }
    int Get() const { return descriptor_; }
    /// Closes now; false when the system reports a late write error.
    bool Close() {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor < 0 || close(descriptor) == 0;
    }

  private:
    int descriptor_;
};

}  // namespace wordhawk
