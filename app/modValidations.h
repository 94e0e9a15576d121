#pragma once

#include <cstdint>
#include <string_view>

namespace wordhawk::modValidations {

/// Kinds of document files by name and existence.
enum FileType : std::uint8_t {
    kTextFile = 1,
    kRichTextFile = 2,
    kMissingFile = 7,
    kNoExtension = 8,
    kOtherExtension = 9,
};

/// Whether the path can be opened as a file.
bool FileExists(std::wstring_view path);

/// Kind of the document at `path`. A name without any "." is kNoExtension whether it exists or not.
std::uint8_t GetFileType(std::wstring_view path);

/// 1 when the text is not empty and upper-casing leaves it as it is.
std::uint8_t IsAllUpperCase(std::wstring_view text);

/// 1 when any of "0" to "9" occurs.
std::uint8_t HasDigit(std::wstring_view text);

}  // namespace wordhawk::modValidations
