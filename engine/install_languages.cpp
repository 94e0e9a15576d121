#include "engine/install_languages.h"

#include "engine/shipped_dictionaries.h"
#include "lang/built_in_texts.h"
#include "lang/modLoadRes.h"
#include "lang/whole_number.h"
#include "platform/file_stamps.h"
#include "platform/modSect.h"
#include "platform/replace_file.h"

#include <algorithm>
#include <cstdint>
#include <system_error>

namespace wordhawk {
namespace {

namespace fs = std::filesystem;

constexpr std::wstring_view kPrefix = L"lang";
constexpr std::wstring_view kExtension = L".ini";
/// The one encoding that profile readers understand on every system, whatever its code page.
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
/// What a file begins with that this program wrote; a checksum of all behind the line follows.
constexpr std::wstring_view kHeading =
    L"; Installed with the program and renewed with it, until it is changed by hand: ";

std::wstring Utf16Units(std::string_view bytes) {
    std::wstring text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        text += static_cast<wchar_t>(static_cast<unsigned char>(bytes[i]) |
                                     static_cast<unsigned char>(bytes[i + 1]) << 8);
    }
    return text;
}

std::string Utf16Bytes(std::wstring_view text) {
    std::string bytes(kUtf16Mark);
    for (const wchar_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8 & 0xFF);
    }
    return bytes;
}

/// FNV-1a over the units, as 16 hexadecimal digits.
std::wstring Checksum(std::wstring_view text) {
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const wchar_t unit : text) sum = (sum ^ unit) * 0x100000001B3;
    std::wstring digits;
    for (int shift = 60; shift >= 0; shift -= 4) digits += L"0123456789abcdef"[sum >> shift & 0xF];
    return digits;
}

/// The installed form of a shipped file: with the system's line ends under a heading line.
std::string InstalledForm(std::string_view shipped) {
    std::wstring body = L"\r\n";
    for (const wchar_t unit : FromUtf8(shipped)) {
        if (unit == L'\r') continue;
        if (unit == L'\n') body += L'\r';
        body += unit;
    }
    return Utf16Bytes(std::wstring(kHeading) + Checksum(body) + body);
}

bool IsAsInstalled(std::string_view bytes) {
    if (!bytes.starts_with(kUtf16Mark)) return false;
    const std::wstring text = Utf16Units(bytes.substr(kUtf16Mark.size()));
    if (!std::wstring_view(text).starts_with(kHeading)) return false;
    const std::wstring_view rest = std::wstring_view(text).substr(kHeading.size());
    const std::size_t end = std::min(rest.find(L'\r'), rest.size());
    return rest.substr(0, end) == Checksum(rest.substr(end));
}

/// Whether the file is what an earlier start, without a shipped file at hand, generated in English.
bool IsGenerated(const Path& file) {
    const auto entries = modSect::ReadSection(file, modLoadRes::kTextSection);
    return std::all_of(entries.begin(), entries.end(), [](std::wstring_view entry) {
        const std::size_t equals = entry.find(L'=');
        const auto id = WholeNumber(entry.substr(0, equals));
        return id && equals != entry.npos && entry.substr(equals + 1) == BuiltInText(*id);
    });
}

/// `shipped` is the stamp of `source`.
void Install(const Path& source, const FileStamp& shipped_stamp, const Path& target) {
    // A copy carries its source's time, which saves reading both at every start.
    if (shipped_stamp == FileStamp{} || StampOf(target).time == shipped_stamp.time) return;

    std::error_code failed;
    const fs::file_time_type shipped_at = fs::last_write_time(source, failed);
    if (failed) return;
    const bool present = fs::exists(target, failed);
    if (failed) return;

    const Result<std::string> shipped = ReadWholeFile(source);
    if (!shipped) return;
    const std::string wanted = InstalledForm(*shipped);
    if (present) {
        const Result<std::string> installed = ReadWholeFile(target);
        if (!installed || (!IsAsInstalled(*installed) && !IsGenerated(target))) return;
        if (*installed == wanted) {
            fs::last_write_time(target, shipped_at, failed);
            return;
        }
    }
    if (!MakeFolder(target.parent_path())) return;
    // It can be copied again at any time: no need to wait for the disk.
    if (ReplaceFileContents(target, wanted, Durability::LeftToTheSystem)) {
        fs::last_write_time(target, shipped_at, failed);
    }
}

/// The name of a language file, the same where it is shipped and where it is installed.
Path FileOf(int locale) {
    return PathFromText(std::wstring(kPrefix) + std::to_wstring(locale) + std::wstring(kExtension));
}

Path TargetOf(const ProgramState& state, int locale) {
    return state.ResourcesFolder() / std::to_string(locale) / FileOf(locale);
}

}  // namespace

void InstallShippedLanguages(const ProgramState& state, const Path& shipped) {
    for (const auto& [name, stamp] : StampedFiles(shipped, kExtension)) {
        const std::wstring_view stem(name.data(), name.size() - kExtension.size());
        if (!stem.starts_with(kPrefix)) continue;
        if (const auto locale = WholeNumber(stem.substr(kPrefix.size())))
            Install(shipped / FileOf(*locale), stamp, TargetOf(state, *locale));
    }
}

void InstallShippedLanguage(const ProgramState& state, const Path& shipped, int locale) {
    for (const int source : {locale, ShippedPackOf(locale)}) {
        const Path file = shipped / FileOf(source);
        const FileStamp stamp = StampOf(file);
        if (stamp == FileStamp{}) continue;
        Install(file, stamp, TargetOf(state, locale));
        return;
    }
}

}  // namespace wordhawk
