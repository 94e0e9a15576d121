#pragma once

#include "platform/files.h"
#include "platform/text.h"

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace wordhawk {

/// A flag of a hunspell dictionary: a character, two characters or a number, by the file's choice.
using AffixFlag = std::uint32_t;

/// What a stem must end (begin) with before a suffix (prefix) may join it.
class AffixCondition {
  public:
    /// Reads "[^aeiou]y", "." and the like; an unclosed bracket runs to the end.
    static AffixCondition Parse(std::wstring_view text);

    bool HoldsAtEnd(std::wstring_view stem) const;
    bool HoldsAtStart(std::wstring_view stem) const;

  private:
    struct Place {
        std::wstring letters;
        bool excludes = false;
        bool Accepts(wchar_t c) const {
            return (letters.find(c) != std::wstring::npos) != excludes;
        }
    };
    std::vector<Place> places_;
};

/// One rule of a flag: takes `strip` off the stem and puts `add` there.
struct Affix {
    std::wstring strip;
    std::wstring add;
    AffixCondition condition;
    /// Flags of further affixes that may join the result.
    std::vector<AffixFlag> further;
    /// Whether prefix and suffix may meet at one stem.
    bool crosses = false;

    bool Has(AffixFlag flag) const;
};

/// The flags by which a dictionary marks stems and affixes; 0 where it has none of the kind.
struct SpecialFlags {
    AffixFlag need_affix = 0;
    AffixFlag only_in_compound = 0;
    AffixFlag forbidden = 0;
    AffixFlag circumfix = 0;
    /// Of stems that may be any part of a compound, its first, a middle, the last one.
    AffixFlag compound = 0;
    AffixFlag compound_begin = 0;
    AffixFlag compound_middle = 0;
    AffixFlag compound_end = 0;
    /// Of affixes that may stand inside a compound.
    AffixFlag compound_permit = 0;
};

/// The rules of a hunspell `.aff` file.
struct AffixRules {
    std::unordered_map<AffixFlag, std::vector<Affix>> prefixes;
    std::unordered_map<AffixFlag, std::vector<Affix>> suffixes;
    SpecialFlags special;
    /// How letters of the dictionary's own are spelled in texts: each first one as the second.
    std::vector<std::pair<std::wstring, std::wstring>> spelling;
    /// Whether an affix may replace the whole stem.
    bool full_strip = false;
    /// Names of the file's commands that change what is a word and that a list of words cannot
    /// express.
    std::set<std::string> not_expressed;

    /// A form of the dictionary as texts spell it.
    std::wstring Spelled(std::wstring form) const;
    /// The flags that `text` spells, in the notation of the file, aliases resolved.
    std::vector<AffixFlag> Flags(std::wstring_view text) const;
    /// Text of a line of the `.aff` or `.dic` file, in the file's encoding.
    std::wstring Decode(std::string_view line) const;

    enum class FlagNotation { Character, TwoCharacters, Number };
    FlagNotation notation = FlagNotation::Character;
    std::vector<std::vector<AffixFlag>> aliases;
    /// nullptr: UTF-8.
    const AnsiCodePage* page = nullptr;
};

/// Reads an `.aff` file. Errors: it cannot be read; its encoding is not known here; it has no
/// command that such a file begins with.
Result<AffixRules> ReadAffixRules(const Path& path);

/// The blank-separated fields of a line.
std::vector<std::wstring_view> Fields(std::wstring_view line);

}  // namespace wordhawk
