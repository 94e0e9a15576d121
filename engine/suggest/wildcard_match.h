#pragma once

#include <string_view>

namespace wordhawk {

/// Whether `candidate` matches, as LikePattern does, some copy of `word` in which one unit is
/// replaced by "*". One pass over the word whatever stands in it.
bool MatchesWithOneWildcard(std::wstring_view word, std::wstring_view candidate);

}  // namespace wordhawk
