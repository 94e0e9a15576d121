#pragma once

#include <tl/expected.hpp>

#include <filesystem>
#include <string>

namespace wordhawk {

/// What went wrong with which file. `what` is a plain English sentence without the path and without
/// a final full stop; the edge (window, command line) decides how it is shown.
struct Error {
    std::wstring what;
    std::filesystem::path where;
};

/// A value, or the reason why there is none. Expected failures travel this way, never as
/// exceptions.
template <class T>
using Result = tl::expected<T, Error>;

}  // namespace wordhawk
