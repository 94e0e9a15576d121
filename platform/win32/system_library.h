#pragma once

#include "platform/win32/win.h"

namespace wordhawk {

/// Loads a library of Windows from the system's folder alone, for the life of the process: one of
/// the same name beside the program or beside a document may be anybody's. Null when there is none.
HMODULE LoadSystemLibrary(const wchar_t* name);

/// From now on the process looks for libraries that are named without a folder in the system's
/// folder alone. To be called before anything else.
void TrustSystemLibrariesOnly();

/// A function of a system library that the program does not name among its imports, since those are
/// looked for beside the program first; null when the system lacks it. `Function` is its type:
/// `SystemFunction<decltype(SetWindowTheme)>(L"uxtheme.dll", "SetWindowTheme")`.
template <class Function>
Function* SystemFunction(const wchar_t* library, const char* name) {
    const HMODULE module = LoadSystemLibrary(library);
    if (module == nullptr) return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace wordhawk
