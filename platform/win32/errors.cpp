#include "platform/win32/errors.h"

namespace wordhawk {
namespace {

std::wstring SystemMessage(DWORD code) {
    wchar_t buffer[512];
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                  nullptr, code, 0, buffer, 512, nullptr);
    while (length > 0 && (buffer[length - 1] <= L' ' || buffer[length - 1] == L'.')) --length;
    if (length == 0) return L"system error " + std::to_wstring(code);
    return {buffer, length};
}

std::wstring Describe(DWORD code) {
    switch (code) {
        case ERROR_FILE_NOT_FOUND: return L"the file does not exist";
        case ERROR_PATH_NOT_FOUND: return L"the folder does not exist";
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME: return L"the name is not a valid file name";
        case ERROR_ACCESS_DENIED: return L"access is denied";
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION: return L"the file is in use by another program";
        case ERROR_WRITE_PROTECT: return L"the disk is write-protected";
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL: return L"the disk is full";
        case ERROR_FILE_TOO_LARGE: return L"the file would grow too large";
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_BUFFER_OVERFLOW: return L"the name is too long";
        case ERROR_TOO_MANY_OPEN_FILES: return L"too many files are open";
        default: return SystemMessage(code);
    }
}

}  // namespace

Error ErrorFromCode(DWORD code, const std::filesystem::path& where) {
    return {Describe(code), where};
}

std::wstring SystemPath(const std::filesystem::path& path) {
    // A folder must leave room for a short file name, so its limit is lower than that of a file.
    constexpr std::size_t kShortEnough = MAX_PATH - 13;
    std::wstring text = path.native();
    if (text.size() < kShortEnough || text.starts_with(LR"(\\?\)")) return text;
    const DWORD needed = GetFullPathNameW(text.c_str(), 0, nullptr, nullptr);
    std::wstring full(needed, L'\0');
    const DWORD length = GetFullPathNameW(text.c_str(), needed, full.data(), nullptr);
    if (length == 0 || length >= needed) return text;
    full.resize(length);
    if (full.starts_with(LR"(\\)")) return LR"(\\?\UNC\)" + full.substr(2);
    return LR"(\\?\)" + full;
}

}  // namespace wordhawk
