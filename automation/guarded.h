#pragma once

#include "platform/win32/win.h"

#include <new>

namespace wordhawk {

/// Runs the body of a method that other programs call: no exception may leave it.
template <class Body>
HRESULT Guarded(const Body& body) noexcept {
    try {
        return body();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}

}  // namespace wordhawk
