#include "platform/folders.h"

#include "platform/win32/win.h"

#include <shlobj.h>

namespace wordhawk {

Path SpecialFolder(int number) {
    wchar_t buffer[MAX_PATH];
    if (SHGetFolderPathW(nullptr, number, nullptr, SHGFP_TYPE_CURRENT, buffer) != S_OK) return {};
    return buffer;
}

Path ProgramFile() {
    std::wstring name(MAX_PATH, L'\0');
    for (;;) {
        const auto size = static_cast<DWORD>(name.size());
        const DWORD length = GetModuleFileNameW(nullptr, name.data(), size);
        if (length < size) {
            name.resize(length);
            return name;
        }
        name.resize(name.size() * 2);
    }
}

Path ProgramFolder() { return ProgramFile().parent_path(); }

Path TemporaryFolder() {
    wchar_t buffer[MAX_PATH + 1];
    const DWORD length = GetTempPathW(MAX_PATH + 1, buffer);
    return std::wstring(buffer, length);
}

}  // namespace wordhawk
