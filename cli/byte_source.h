#pragma once

#include "platform/files.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

namespace wordhawk {

/// The bytes of a file, or of standard input, from front to back.
class ByteSource {
  public:
    /// Errors: missing, a folder, not readable.
    static Result<ByteSource> OpenFile(const Path& path);
    static ByteSource StandardInput();

    /// Appends up to `size` bytes to `out`; fewer only at the end. Errors: reading failed.
    Result<void> Read(std::size_t size, std::string& out);
    bool AtEnd() const { return at_end_; }

    /// Remembers the place that reading has come to. False when the bytes come only once (a pipe).
    bool Mark();
    /// Back to that place.
    bool GoBack();

    /// Bytes in all when that is known beforehand, else 0.
    std::uint64_t Size() const { return size_; }

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    Path path_;
    std::unique_ptr<std::FILE, Closer> file_;  // none: standard input
    std::uint64_t size_ = 0;
    std::uint64_t bytes_read_ = 0;
    std::fpos_t mark_{};
    std::uint64_t bytes_before_mark_ = 0;
    bool at_end_ = false;
};

}  // namespace wordhawk
