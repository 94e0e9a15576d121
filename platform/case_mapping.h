#pragma once

#include <array>
#include <cstdint>

namespace wordhawk {

/// The mapped form of every UTF-16 unit.
using CaseTable = std::array<std::uint16_t, 65536>;

/// The tables behind LowerChar and UpperChar, for loops that map many units.
const CaseTable& LowerTable();
const CaseTable& UpperTable();

}  // namespace wordhawk
