#include "ui/main_window/recovery_copy.h"

#include "platform/replace_file.h"
#include "platform/win32/errors.h"

#include <utility>

namespace wordhawk {
namespace {

constexpr int kMostWindows = 99;
constexpr int kMostKept = 9;

const wchar_t* Extension(DocumentKind kind) {
    return kind == DocumentKind::Rich ? L".rtf" : L".txt";
}

std::wstring KeptName(int number, const std::wstring& extension) {
    return L"Unsaved text" + (number > 1 ? L" " + std::to_wstring(number) : std::wstring()) +
           extension;
}

/// When the file was written last; 0 when there is none.
std::uint64_t WrittenAt(const Path& file) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(SystemPath(file).c_str(), GetFileExInfoStandard, &data)) return 0;
    return std::uint64_t{data.ftLastWriteTime.dwHighDateTime} << 32 |
           data.ftLastWriteTime.dwLowDateTime;
}

}  // namespace

Path RecoveryCopy::FileOf(int number, DocumentKind kind) const {
    return folder_ / (L"Recovery copy " + std::to_wstring(number) + Extension(kind));
}

bool RecoveryCopy::Hold(int number) {
    const Path lock = folder_ / (L"Recovery copy " + std::to_wstring(number) + L".lock");
    FileHandle hold(CreateFileW(SystemPath(lock).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    if (!hold) return false;
    hold_ = std::move(hold);
    number_ = number;
    return true;
}

bool RecoveryCopy::HoldFree() {
    for (int number = 1; number <= kMostWindows; ++number) {
        if (!Hold(number)) continue;
        // One that was left behind waits to be offered.
        if (!IsFile(FileOf(number, DocumentKind::Plain)) &&
            !IsFile(FileOf(number, DocumentKind::Rich))) {
            return true;
        }
        Release();
    }
    return false;
}

void RecoveryCopy::Release() {
    hold_.Reset();
    number_ = 0;
    file_.clear();
}

Result<void> RecoveryCopy::Write(std::string_view bytes, DocumentKind kind) {
    if (number_ == 0 && !HoldFree()) {
        return tl::unexpected(ErrorFromCode(GetLastError(), folder_));
    }
    const Path file = FileOf(number_, kind);
    const Result<void> written = ReplaceFileContents(file, bytes, Durability::LeftToTheSystem);
    if (!written) return written;
    const Path before = std::exchange(file_, file);
    if (!before.empty() && before != file) static_cast<void>(DeleteOneFile(before));
    return {};
}

void RecoveryCopy::Discard() {
    if (!file_.empty()) static_cast<void>(DeleteOneFile(file_));
    file_.clear();
}

Result<std::wstring> RecoveryCopy::KeepForGood() {
    const std::wstring extension = file_.extension().native();
    const auto move = [&](const Path& target, DWORD how) {
        return MoveFileExW(SystemPath(file_).c_str(), SystemPath(target).c_str(), how) != 0;
    };
    Path oldest;
    for (int number = 1; number <= kMostKept; ++number) {
        const std::wstring name = KeptName(number, extension);
        const Path target = folder_ / name;
        // Fails where a file is, whoever made it, and however recently.
        if (move(target, 0)) {
            Release();
            return name;
        }
        if (oldest.empty() || WrittenAt(target) < WrittenAt(oldest)) oldest = target;
    }
    if (!move(oldest, MOVEFILE_REPLACE_EXISTING)) {
        return tl::unexpected(ErrorFromCode(GetLastError(), file_));
    }
    Release();
    return oldest.filename().native();
}

std::optional<Path> RecoveryCopy::TakeLeft() {
    for (int number = 1; number <= kMostWindows; ++number) {
        for (const DocumentKind kind : {DocumentKind::Plain, DocumentKind::Rich}) {
            const Path file = FileOf(number, kind);
            if (!IsFile(file) || !Hold(number)) continue;
            // Its window may have put it away just before it let go of the number.
            if (!IsFile(file)) {
                Release();
                continue;
            }
            file_ = file;
            return file;
        }
    }
    return std::nullopt;
}

}  // namespace wordhawk
