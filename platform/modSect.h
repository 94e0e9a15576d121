#pragma once

#include "platform/files.h"
#include "platform/profile_text.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Profile (INI) strings and sections. On Windows they are read by the system's own calls,
/// elsewhere with the same results. Sections and keys are found without regard to case; values lose
/// blanks and one pair of surrounding quotes, as the system's reader has it. On every system a file
/// is changed by one program at a time and replaced whole, so that no crash and no full disk leaves
/// half of it.
namespace wordhawk::modSect {

/// A profile file. Off Windows, where no system decides it, its bytes are in `page`; null stands
/// for the page of the system's locale.
struct ProfileFile {
    // Implicit: most profile files need no page.
    ProfileFile(Path file, const AnsiCodePage* code_page = nullptr)
        : path(std::move(file)), page(code_page) {}

    Path path;
    const AnsiCodePage* page;
};

/// Units of the buffer a value is read through; one of them is the final NUL.
inline constexpr int kValueBuffer = 255;

/// The value, at most 254 units of it; `default_text` when file, section or key is missing. An
/// existing key with nothing after "=" gives the empty text.
std::wstring ReadSetting(std::wstring_view section, std::wstring_view key,
                         std::wstring_view default_text, const ProfileFile& file);

/// The value of a key as ReadSetting gives it, from what stands in the file, if anything does.
std::wstring ValueAsRead(const std::optional<std::wstring_view>& stored,
                         std::wstring_view default_text);

struct KeyAndValue {
    std::wstring key;
    std::wstring value;
};

/// ReadSetting of many keys of a section, given with their defaults, in one go.
std::vector<std::wstring> ReadSettings(std::wstring_view section,
                                       std::span<const KeyAndValue> keys_and_defaults,
                                       const ProfileFile& file);

/// All "key=value" texts of a section in file order, of any length. An empty or missing section
/// gives one empty text.
std::vector<std::wstring> ReadSection(const ProfileFile& file, std::wstring_view section);

/// A profile file for many questions, which give what the functions of the same names give. Off
/// Windows it is read once.
class ProfileReader {
  public:
    explicit ProfileReader(ProfileFile file);

    std::wstring ReadSetting(std::wstring_view section, std::wstring_view key,
                             std::wstring_view default_text) const;
    std::vector<std::wstring> ReadSettings(std::wstring_view section,
                                           std::span<const KeyAndValue> keys_and_defaults) const;
    std::vector<std::wstring> ReadSection(std::wstring_view section) const;

  private:
    ProfileFile file_;
    /// Off Windows, what the file holds.
    std::optional<ProfileText> text_;
};

/// Writes a value, making file and section when missing; comments, order and unknown keys stay.
/// False when the file could not be written (it is then as it was).
bool WriteSetting(std::wstring_view section, std::wstring_view key, std::wstring_view value,
                  const ProfileFile& file);

/// WriteSetting of many values with a single rewrite of the file.
bool WriteSettings(std::wstring_view section, std::span<const KeyAndValue> values,
                   const ProfileFile& file);

/// What a file holds and is to hold, while nobody else can change it.
class Change {
  public:
    Change(ProfileText& text, const AnsiCodePage& page) : text_(text), page_(page) {}

    /// As ReadSection and ReadSetting have them.
    std::vector<std::wstring> Section(std::wstring_view section) const;
    std::wstring Value(std::wstring_view section, std::wstring_view key,
                       std::wstring_view default_text) const;
    void Set(std::wstring_view section, std::wstring_view key, std::wstring_view value);
    /// Whether the file can keep `text` without loss: it may be in a page that lacks a character.
    bool CanHold(std::wstring_view text) const;

  private:
    ProfileText& text_;
    const AnsiCodePage& page_;
};

/// Reads, changes and replaces a file under its lock: for every new value that depends on an old
/// one. An error of `change` leaves the file as it is and is handed on. `change` must not call any
/// other function that writes the same file; what it does is tried without the lock first, so that
/// a file that is to stay as it is costs none, and done again under it.
Result<void> ChangeProfile(const ProfileFile& file,
                           const std::function<Result<void>(Change&)>& change);

/// The part before the first NUL, or the whole text.
std::wstring_view StripNull(std::wstring_view text);

/// The part before the first CR or LF: a value with line ends would add lines of its own.
std::wstring_view OneLine(std::wstring_view text);

}  // namespace wordhawk::modSect
