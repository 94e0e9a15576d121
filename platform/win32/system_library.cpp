#include "platform/win32/system_library.h"

namespace wordhawk {

HMODULE LoadSystemLibrary(const wchar_t* name) {
    return LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
}

void TrustSystemLibrariesOnly() {
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    // The current folder as well, where a document's neighbours may lie.
    SetDllDirectoryW(L"");
}

}  // namespace wordhawk
