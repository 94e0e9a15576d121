#pragma once

#include <cstdint>

namespace wordhawk::modICCX {

/// Every class of common controls that the forms use.
inline constexpr std::uint32_t kAllClasses = 255;

/// Registers the common control classes named by `flags`. Call it before a form makes its controls;
/// calling again does no harm. Nothing happens on a system without such controls.
void InitCommonControlsVB(std::uint32_t flags);

}  // namespace wordhawk::modICCX
