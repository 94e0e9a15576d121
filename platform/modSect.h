#pragma once

#include "platform/files.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Profile (INI) strings and sections. On Windows the system's own calls; elsewhere an INI library
/// with the same results. Sections and keys are found without regard to case; values lose blanks
/// and one pair of surrounding quotes, as the system's reader has it.
namespace wordhawk::modSect {

/// Units of the buffer a value is read through; one of them is the final NUL.
inline constexpr int kValueBuffer = 255;

/// The value, at most 254 units of it; `default_text` when file, section or key is missing. An
/// existing key with nothing after "=" gives the empty text.
std::wstring ReadSetting(std::wstring_view section, std::wstring_view key,
                         std::wstring_view default_text, const Path& file);

/// Writes a value, making file and section when missing; comments, order and unknown keys stay.
/// False when the file could not be written (it is then as it was).
bool WriteSetting(std::wstring_view section, std::wstring_view key, std::wstring_view value,
                  const Path& file);

struct KeyAndValue {
    std::wstring key;
    std::wstring value;
};

/// WriteSetting of many values with a single rewrite of the file.
bool WriteSettings(std::wstring_view section, std::span<const KeyAndValue> values,
                   const Path& file);

/// All "key=value" texts of a section in file order, of any length. An empty or missing section
/// gives one empty text.
std::vector<std::wstring> ReadSection(const Path& file, std::wstring_view section);

/// The part before the first NUL, or the whole text.
std::wstring_view StripNull(std::wstring_view text);

/// The part before the first CR or LF: a value with line ends would add lines of its own.
std::wstring_view OneLine(std::wstring_view text);

}  // namespace wordhawk::modSect
