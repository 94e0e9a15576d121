#pragma once

#include "platform/files.h"

#include <memory>

namespace wordhawk {

/// Advisory lock between running copies of the program (and threads of one copy): held from Acquire
/// to destruction, waited for without limit, released by the system if the process dies. One lock a
/// folder, kept in a small hidden file there; take it around read - change - replace.
class SingleWriter {
  public:
    /// Errors: the folder is missing or does not allow a file to be made.
    static Result<SingleWriter> Acquire(const Path& folder);

    SingleWriter(SingleWriter&&) noexcept;
    SingleWriter& operator=(SingleWriter&&) noexcept;
    ~SingleWriter();

  private:
    struct Handle;
    explicit SingleWriter(std::unique_ptr<Handle> handle);
    std::unique_ptr<Handle> handle_;
};

}  // namespace wordhawk
