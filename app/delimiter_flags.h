#pragma once

#include "platform/files.h"
#include "platform/modSect.h"
#include "platform/text.h"

#include <bitset>
#include <span>
#include <string>
#include <string_view>

namespace wordhawk {

/// The 255 stored switches: 1 to 108 choose delimiters, 249 and 250 steer the import, 254 the
/// warning before adding to the main dictionary. Kept as "0"/"1" text in the settings file.
class DelimiterFlagStore {
  public:
    static constexpr int kCount = 255;
    static constexpr int kDelimiterCount = 108;
    /// 15 x "1", 10 x "0", 83 x "1", 140 x "0", "1101110".
    static const std::string& DefaultFlags();

    /// Reads the flags from key "DSA" of section "Settings"; a missing or short text is filled up
    /// from the default.
    void Load(const Path& settings_file);
    /// The same by who has read the file already.
    void Load(const Path& settings_file, const modSect::ProfileReader& settings);
    /// Writes all 255 flags: those set since Load, the others as the file has them by now. False
    /// when the file could not be written.
    bool Save();

    /// One switch and its new value.
    struct Flag {
        int index;
        int value;
    };
    /// Sets these flags here and in the file, where the others stay as another running copy may
    /// have left them. False when the file could not be written; they are set here all the same.
    bool Change(std::span<const Flag> changed);

    /// `index` 1 to 255; anything else is 0 / ignored.
    int Get(int index) const;
    void Set(int index, int value);

  private:
    Path settings_file_;
    std::string flags_ = DefaultFlags();
    /// As they were in the file when it was read or written last.
    std::string stored_ = DefaultFlags();
};

/// The single-byte code that delimiter flag 1 to 108 stands for.
unsigned char DelimiterCodeOfFlag(int index);

/// The characters whose flag is 1, in flag order, by their code in `page`.
std::wstring BuildDelimiters(const DelimiterFlagStore& flags, const AnsiCodePage& page);

/// `delimiters` without the letters among them: characters that have an upper and a lower case.
std::wstring WithoutLetters(std::wstring_view delimiters);

/// The delimiter set as a table over all UTF-16 units.
class DelimiterSet {
  public:
    explicit DelimiterSet(std::wstring_view delimiters) {
        for (const wchar_t c : delimiters) set_.set(static_cast<std::uint16_t>(c));
    }
    bool Contains(wchar_t c) const { return set_[static_cast<std::uint16_t>(c)]; }

  private:
    std::bitset<65536> set_;
};

}  // namespace wordhawk
