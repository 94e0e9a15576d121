#pragma once

#include "platform/text.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// The text of a profile (INI) file, read and changed exactly as Windows does it: the first of
/// several equal sections or keys counts, only ";" makes a comment, a line without "=" is a key
/// without a value, and a change touches no other line. The INI libraries at hand merge sections,
/// take "#" for a comment and write the file anew from their own map, losing lines and layout.
class ProfileText {
  public:
    /// `bytes` are UTF-16 when they start with its mark, else text in `page`; a UTF-8 mark is
    /// skipped.
    ProfileText(std::string_view bytes, const AnsiCodePage& page);

    /// The value without surrounding blanks; nothing when section, key or "=" is missing.
    std::optional<std::wstring_view> Value(std::wstring_view section, std::wstring_view key) const;

    /// Value of each of the keys, found in one walk through the section.
    std::vector<std::optional<std::wstring_view>> Values(
        std::wstring_view section, std::span<const std::wstring_view> keys) const;

    /// "key=value" of every line of the section that is neither blank nor a comment.
    std::vector<std::wstring> Entries(std::wstring_view section) const;

    void SetValue(std::wstring_view section, std::wstring_view key, std::wstring_view value);

    /// Whether the file's own encoding holds every character.
    bool IsUnicode() const { return encoding_ == Encoding::Utf16; }

    /// The file as bytes, in the encoding that it came in.
    std::string Bytes() const;

  private:
    struct Line;
    struct SectionLines;
    Line LineAt(std::size_t begin) const;
    SectionLines FindSection(std::wstring_view name) const;

    enum class Encoding { Ansi, Utf8MarkThenAnsi, Utf16 };
    Encoding encoding_ = Encoding::Ansi;
    const AnsiCodePage& page_;
    std::wstring text_;
};

}  // namespace wordhawk
