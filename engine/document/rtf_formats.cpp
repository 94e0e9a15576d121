#include "engine/document/rtf_formats.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <span>

namespace wordhawk {
namespace {

using C = CharacterProperty;
using P = ParagraphProperty;

/// The system's rich text box keeps no more tab stops for a paragraph.
constexpr std::size_t kMostTabs = 32;
/// 22 inches in twips, the widest that a page may be.
constexpr int kWidest = 31680;
/// Text whose language nobody told.
constexpr int kNoLanguage = 1024;
constexpr int kUsualSize = 24;  // half-points

enum class Takes {
    Number,    // as it stands, within the range
    Negative,  // the number with the other sign
    Switch,    // 0 off, anything else or nothing on
    Nothing    // always means `value`
};

template <class Property>
struct Word {
    std::string_view name;
    Property property;
    Takes takes;
    /// Of Nothing the value, of numbers the one meant when none is given.
    int value = 0;
    int least = 0;
    int most = 1;
};

// Written words stand first where several mean the same.
constexpr Word<C> kCharacterWords[] = {
    {"f", C::Font, Takes::Number, 0, 0, 32767},
    {"fs", C::Size, Takes::Number, kUsualSize, 2, 3276},
    {"cf", C::Foreground, Takes::Number, 0, 0, 32767},
    {"highlight", C::Background, Takes::Number, 0, 0, 32767},
    {"cb", C::Background, Takes::Number, 0, 0, 32767},
    {"chcbpat", C::Background, Takes::Number, 0, 0, 32767},
    {"b", C::Bold, Takes::Switch},
    {"i", C::Italic, Takes::Switch},
    {"strike", C::Strike, Takes::Switch},
    {"ulnone", C::Underline, Takes::Nothing, 0},
    {"ul", C::Underline, Takes::Switch},
    {"uld", C::Underline, Takes::Nothing, 2},
    {"uldb", C::Underline, Takes::Nothing, 3},
    {"ulw", C::Underline, Takes::Nothing, 4},
    {"uldash", C::Underline, Takes::Nothing, 5},
    {"uldashd", C::Underline, Takes::Nothing, 6},
    {"uldashdd", C::Underline, Takes::Nothing, 7},
    {"ulth", C::Underline, Takes::Nothing, 8},
    {"ulwave", C::Underline, Takes::Nothing, 9},
    {"nosupersub", C::Script, Takes::Nothing, 0},
    {"super", C::Script, Takes::Switch},
    {"sub", C::Script, Takes::Nothing, 2},
    {"up", C::Offset, Takes::Number, 6, -3276, 3276},
    {"dn", C::Offset, Takes::Negative, 6, -3276, 3276},
    {"v", C::Hidden, Takes::Switch},
    {"caps", C::Capitals, Takes::Switch},
    {"scaps", C::SmallCapitals, Takes::Switch},
    {"outl", C::Outline, Takes::Switch},
    {"shad", C::Shadow, Takes::Switch},
    {"embo", C::Emboss, Takes::Switch},
    {"impr", C::Engrave, Takes::Switch},
    {"expndtw", C::Spacing, Takes::Number, 0, -kWidest, kWidest},
    {"lang", C::Language, Takes::Number, 0, 0, 65535},
};

constexpr Word<P> kParagraphWords[] = {
    {"ql", P::Alignment, Takes::Nothing, 0},
    {"qr", P::Alignment, Takes::Nothing, 1},
    {"qc", P::Alignment, Takes::Nothing, 2},
    {"qj", P::Alignment, Takes::Nothing, 3},
    {"li", P::Left, Takes::Number, 0, -kWidest, kWidest},
    {"ri", P::Right, Takes::Number, 0, -kWidest, kWidest},
    {"fi", P::FirstLine, Takes::Number, 0, -kWidest, kWidest},
    {"sb", P::Before, Takes::Number, 0, 0, kWidest},
    {"sa", P::After, Takes::Number, 0, 0, kWidest},
    {"sl", P::LineHeight, Takes::Number, 0, -kWidest, kWidest},
    {"slmult", P::LineHeightRule, Takes::Number, 0, 0, 1},
    {"rtlpar", P::RightToLeft, Takes::Nothing, 1},
    {"ltrpar", P::RightToLeft, Takes::Nothing, 0},
    {"keep", P::KeepTogether, Takes::Nothing, 1},
    {"keepn", P::KeepWithNext, Takes::Nothing, 1},
    {"pagebb", P::NewPage, Takes::Switch},
};

constexpr std::string_view kTabKinds[] = {"", "tqr", "tqc", "tqdec"};
constexpr std::string_view kTabLeaders[] = {"", "tldot", "tlhyph", "tlul", "tlth", "tleq"};

/// Where `name` stands in `names`; 0, which is none, when it does not.
int IndexOf(std::string_view name, std::span<const std::string_view> names) {
    const auto found = std::find(names.begin() + 1, names.end(), name);
    return found == names.end() ? 0 : static_cast<int>(found - names.begin());
}

template <class Property>
int ValueOf(const Word<Property>& row, const RtfToken& word) {
    const int number = word.has_number ? word.number : row.value;
    switch (row.takes) {
        case Takes::Number: return std::clamp(number, row.least, row.most);
        case Takes::Negative: return std::clamp(-number, row.least, row.most);
        case Takes::Switch: return !word.has_number || word.number != 0 ? 1 : 0;
        case Takes::Nothing: break;
    }
    return row.value;
}

template <class Format, class Property, std::size_t Count>
bool ApplyFrom(const Word<Property> (&words)[Count], const RtfToken& word, Format& format) {
    const auto row = std::find_if(std::begin(words), std::end(words),
                                  [&](const auto& w) { return w.name == word.text; });
    if (row == std::end(words)) return false;
    if (!word.out_of_range) format[row->property] = ValueOf(*row, word);
    return true;
}

template <class Property, std::size_t Count>
void WriteValue(const Word<Property> (&words)[Count], Property property, int value,
                std::string& out) {
    for (const Word<Property>& row : words) {
        if (row.property != property) continue;
        if (row.takes == Takes::Nothing && row.value != value) continue;
        if (row.takes == Takes::Switch && value > 1) continue;
        out.append("\\").append(row.name);
        if (row.takes == Takes::Number) out += std::to_string(value);
        if (row.takes == Takes::Switch && value == 0) out += '0';
        return;
    }
}

}  // namespace

CharacterFormat::CharacterFormat() : values{} {
    CharacterFormat& self = *this;
    self[C::Font] = -1;
    self[C::Size] = kUsualSize;
    self[C::Foreground] = -1;
    self[C::Background] = -1;
    self[C::Language] = kNoLanguage;
}

bool Apply(const RtfToken& word, CharacterFormat& format) {
    return ApplyFrom(kCharacterWords, word, format);
}

bool Apply(const RtfToken& word, ParagraphFormat& format) {
    if (ApplyFrom(kParagraphWords, word, format)) return true;
    if (word.text == "pard") {
        format = {};
    } else if (word.text == "tx") {
        const int place = std::clamp(word.number, 0, kWidest);
        const bool in_order = format.tabs.empty() || format.tabs.back().place < place;
        if (in_order && !word.out_of_range && format.tabs.size() < kMostTabs) {
            format.next_tab.place = place;
            format.tabs.push_back(format.next_tab);
        }
        format.next_tab = {};
    } else if (const int kind = IndexOf(word.text, kTabKinds)) {
        format.next_tab.kind = kind;
    } else if (const int leader = IndexOf(word.text, kTabLeaders)) {
        format.next_tab.leader = leader;
    } else {
        return false;
    }
    return true;
}

void WriteWord(std::string_view word, int number, std::string& out) {
    char digits[12];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    out.append("\\").append(word).append(digits, end);
}

void WriteChange(const CharacterFormat& from, const CharacterFormat& to, std::string& out) {
    for (int i = 0; i < static_cast<int>(C::Count); ++i) {
        const auto property = static_cast<C>(i);
        if (from[property] != to[property]) {
            WriteValue(kCharacterWords, property, to[property], out);
        }
    }
}

void Write(const ParagraphFormat& format, std::string& out) {
    out += "\\pard";
    const ParagraphFormat none;
    for (int i = 0; i < static_cast<int>(P::Count); ++i) {
        const auto property = static_cast<P>(i);
        if (format[property] != none[property]) {
            WriteValue(kParagraphWords, property, format[property], out);
        }
    }
    for (const TabStop& tab : format.tabs) {
        if (tab.kind != 0) out.append("\\").append(kTabKinds[tab.kind]);
        if (tab.leader != 0) out.append("\\").append(kTabLeaders[tab.leader]);
        WriteWord("tx", tab.place, out);
    }
}

}  // namespace wordhawk
