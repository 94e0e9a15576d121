#pragma once

#include <string>
#include <string_view>

namespace wordhawk {

/// The name of a file that is about to become another: short whatever that one is called, hidden
/// where a full stop hides, and drawn at random, so that nobody can stand in its place beforehand.
std::wstring TemporaryName();

/// Whether TemporaryName, of this version or an earlier one, made the name.
bool IsTemporaryName(std::wstring_view name);

}  // namespace wordhawk
