#include "platform/modICCX.h"

namespace wordhawk::modICCX {

void InitCommonControlsVB(std::uint32_t) {}

}  // namespace wordhawk::modICCX
