#include "platform/posix/errors.h"

#include "platform/text.h"

#include <cerrno>
#include <system_error>

namespace wordhawk {
namespace {

std::wstring Describe(int code) {
    switch (code) {
        case ENOENT: return L"the file does not exist";
        case ENOTDIR: return L"a part of the path is not a folder";
        case EISDIR: return L"this is a folder, not a file";
        case EACCES:
        case EPERM: return L"access is denied";
        case EROFS: return L"the disk is write-protected";
        case ENOSPC: return L"the disk is full";
        case EDQUOT: return L"the disk quota is used up";
        case EFBIG: return L"the file would grow too large";
        case ENAMETOOLONG: return L"the name is too long";
        case EMFILE:
        case ENFILE: return L"too many files are open";
        case ELOOP: return L"the link leads in a circle";
        default: return FromUtf8(std::system_category().message(code));
    }
}

}  // namespace

Error ErrorFromErrno(int code, const std::filesystem::path& where) {
    return {Describe(code), where};
}

}  // namespace wordhawk
