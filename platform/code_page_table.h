#pragma once

#include <array>

namespace wordhawk {

/// The characters of the 256 bytes of a Windows single-byte code page as the system knows them; an
/// undefined byte stands for the code point of its number. False when the system lacks the page.
bool SystemCodePageTable(int number, std::array<wchar_t, 256>& table);

}  // namespace wordhawk
