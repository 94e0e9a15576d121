#pragma once

namespace wordhawk {

/// Locale number of the shipped dictionary that serves `locale`, such as 2057 for 3081 (English,
/// Australia); 0 when none is shipped for its language.
int ShippedPackOf(int locale);

}  // namespace wordhawk
