#include "platform/cIsInIDE.h"

#include <cassert>

namespace wordhawk {

bool cIsInIDE::IsInIDE() {
    in_ide_ = false;
    // The assertion is never false; it is there for its side effect, which a release build lacks.
    assert(MarkInIDE());
    return in_ide_;
}

bool cIsInIDE::MarkInIDE() {
    in_ide_ = true;
    return true;
}

}  // namespace wordhawk
