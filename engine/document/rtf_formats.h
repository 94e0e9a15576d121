#pragma once

#include "engine/document/rtf_lexer.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// The character and paragraph formats that rich text may bring along.
namespace wordhawk {

enum class CharacterProperty {
    Font,
    Size,
    Foreground,
    Background,
    Bold,
    Italic,
    Strike,
    Underline,
    Script,
    Offset,
    Hidden,
    Capitals,
    SmallCapitals,
    Outline,
    Shadow,
    Emboss,
    Engrave,
    Spacing,
    Language,
    Count
};

/// Fonts and colours are numbers of the document that is read; -1 is its default font, the reader's
/// own colour.
struct CharacterFormat {
    CharacterFormat();
    int& operator[](CharacterProperty property) { return values[static_cast<int>(property)]; }
    int operator[](CharacterProperty property) const { return values[static_cast<int>(property)]; }
    bool operator==(const CharacterFormat&) const = default;

    std::array<int, static_cast<int>(CharacterProperty::Count)> values;
};

enum class ParagraphProperty {
    Alignment,
    Left,
    Right,
    FirstLine,
    Before,
    After,
    LineHeight,
    LineHeightRule,
    RightToLeft,
    KeepTogether,
    KeepWithNext,
    NewPage,
    Count
};

struct TabStop {
    int place = 0;   // twips
    int kind = 0;    // as it is written: see rtf_formats.cpp
    int leader = 0;  // the same
    bool operator==(const TabStop&) const = default;
};

struct ParagraphFormat {
    int& operator[](ParagraphProperty property) { return values[static_cast<int>(property)]; }
    int operator[](ParagraphProperty property) const { return values[static_cast<int>(property)]; }
    bool operator==(const ParagraphFormat&) const = default;

    std::array<int, static_cast<int>(ParagraphProperty::Count)> values{};
    std::vector<TabStop> tabs;
    TabStop next_tab;
};

/// Applies a control word to a format; numbers are brought into their range, and one beyond 31 bits
/// makes the word void. False when the word is none of the format's.
bool Apply(const RtfToken& word, CharacterFormat& format);
bool Apply(const RtfToken& word, ParagraphFormat& format);

/// Appends what leads from one format to the other. Fonts and colours must be numbers of the
/// document that is written, with 0 for what is -1 where it is read.
void WriteChange(const CharacterFormat& from, const CharacterFormat& to, std::string& out);
/// Appends the whole format, from a paragraph without any.
void Write(const ParagraphFormat& format, std::string& out);

/// Appends a control word with its number.
void WriteWord(std::string_view word, int number, std::string& out);

}  // namespace wordhawk
