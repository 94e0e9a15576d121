#include "dict/affix_rules.h"

#include "dict/lines.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace wordhawk {
namespace {

constexpr wchar_t kByteOrderMark = 0xFEFF;

/// Code pages by the names that such files use. Windows' pages hold the letters of the ISO ones
/// that they came from, at the same places.
constexpr std::array<std::pair<std::string_view, int>, 14> kEncodings{{
    {"ISO8859-1", 1252},
    {"ISO8859-2", 28592},
    {"ISO8859-3", 28593},
    {"ISO8859-4", 28594},
    {"ISO8859-5", 28595},
    {"ISO8859-7", 1253},
    {"ISO8859-9", 1254},
    {"ISO8859-10", 28600},
    {"ISO8859-13", 28603},
    {"ISO8859-14", 28604},
    {"ISO8859-15", 28605},
    {"KOI8-R", 20866},
    {"KOI8-U", 21866},
    {"microsoft-cp1251", 1251},
}};

/// Commands that no list of words and parts of words can follow.
constexpr std::array<std::string_view, 3> kNotExpressed{"COMPOUNDRULE", "COMPLEXPREFIXES",
                                                        "IGNORE"};

bool IsBlank(wchar_t c) { return c == L' ' || c == L'\t' || c == L'\r'; }

AffixFlag NumberOf(std::wstring_view digits) {
    return static_cast<AffixFlag>(std::max(NumberOrZero(digits), 0));
}

std::vector<AffixFlag> SpelledFlags(std::wstring_view text, AffixRules::FlagNotation notation) {
    using enum AffixRules::FlagNotation;
    std::vector<AffixFlag> flags;
    if (notation == Number) {
        while (!text.empty()) {
            const std::size_t comma = std::min(text.find(L','), text.size());
            if (const AffixFlag flag = NumberOf(text.substr(0, comma)); flag != 0)
                flags.push_back(flag);
            text.remove_prefix(std::min(comma + 1, text.size()));
        }
        return flags;
    }
    const std::size_t width = notation == TwoCharacters ? 2 : 1;
    for (std::size_t i = 0; i + width <= text.size(); i += width) {
        AffixFlag flag = static_cast<AffixFlag>(text[i]);
        if (width == 2) flag = flag << 16 | static_cast<AffixFlag>(text[i + 1]);
        flags.push_back(flag);
    }
    return flags;
}

/// Reads the lines of one file into the rules.
class Reader {
  public:
    explicit Reader(AffixRules& rules) : rules_(rules) {}

    void Take(std::wstring_view line) {
        const std::vector<std::wstring_view> fields = Fields(line);
        if (fields.size() < 2) {
            if (!fields.empty() && fields[0] == L"FULLSTRIP") rules_.full_strip = true;
            if (!fields.empty() && fields[0] == L"COMPLEXPREFIXES")
                rules_.not_expressed.insert("COMPLEXPREFIXES");
            return;
        }
        if (fields[0] == L"PFX" || fields[0] == L"SFX") {
            TakeAffix(fields);
        } else if (fields[0] == L"FLAG") {
            TakeNotation(fields[1]);
        } else if (fields[0] == L"AF") {
            TakeAlias(fields[1]);
        } else if (fields[0] == L"OCONV") {
            TakeSpelling(fields);
        } else {
            TakeSpecial(fields);
        }
    }

    bool FoundAny() const { return found_any_; }

  private:
    void TakeAffix(const std::vector<std::wstring_view>& fields) {
        found_any_ = true;
        if (fields.size() < 4) return;
        const bool is_prefix = fields[0] == L"PFX";
        // The flag of a rule or of a special kind is spelled out, whatever aliases there are.
        const std::vector<AffixFlag> flags = SpelledFlags(fields[1], rules_.notation);
        if (flags.size() != 1) return;
        auto& headers = is_prefix ? prefix_headers_ : suffix_headers_;
        const auto header = headers.find(flags[0]);
        if (header == headers.end()) {
            headers.emplace(flags[0], fields[2] == L"Y");
            return;
        }
        Affix affix;
        affix.crosses = header->second;
        if (fields[2] != L"0") affix.strip = fields[2];
        std::wstring_view add = fields[3];
        if (const std::size_t slash = add.find(L'/'); slash != std::wstring_view::npos) {
            affix.further = rules_.Flags(add.substr(slash + 1));
            add = add.substr(0, slash);
        }
        if (add != L"0") affix.add = add;
        affix.condition = AffixCondition::Parse(fields.size() > 4 ? fields[4] : L".");
        auto& family = is_prefix ? rules_.prefixes : rules_.suffixes;
        family[flags[0]].push_back(std::move(affix));
    }

    void TakeNotation(std::wstring_view name) {
        using enum AffixRules::FlagNotation;
        rules_.notation = name == L"long" ? TwoCharacters : name == L"num" ? Number : Character;
    }

    /// The first line of aliases holds their number alone.
    void TakeAlias(std::wstring_view flags) {
        if (std::exchange(seen_alias_count_, true))
            rules_.aliases.push_back(SpelledFlags(flags, rules_.notation));
    }

    /// The first line of spellings holds their number alone. Apostrophes stay straight, as in every
    /// dictionary here.
    void TakeSpelling(const std::vector<std::wstring_view>& fields) {
        if (fields.size() > 2 && fields[1] != L"'")
            rules_.spelling.emplace_back(fields[1], fields[2]);
    }

    void TakeSpecial(const std::vector<std::wstring_view>& fields) {
        struct Special {
            std::wstring_view name;
            AffixFlag SpecialFlags::*flag;
        };
        static constexpr std::array<Special, 11> kSpecials{{
            {L"NEEDAFFIX", &SpecialFlags::need_affix},
            {L"PSEUDOROOT", &SpecialFlags::need_affix},
            {L"ONLYINCOMPOUND", &SpecialFlags::only_in_compound},
            {L"FORBIDDENWORD", &SpecialFlags::forbidden},
            {L"CIRCUMFIX", &SpecialFlags::circumfix},
            {L"COMPOUNDFLAG", &SpecialFlags::compound},
            {L"COMPOUNDBEGIN", &SpecialFlags::compound_begin},
            {L"COMPOUNDMIDDLE", &SpecialFlags::compound_middle},
            {L"COMPOUNDEND", &SpecialFlags::compound_end},
            {L"COMPOUNDLAST", &SpecialFlags::compound_end},
            {L"COMPOUNDPERMITFLAG", &SpecialFlags::compound_permit},
        }};
        for (const Special& special : kSpecials) {
            if (fields[0] != special.name) continue;
            const std::vector<AffixFlag> flags = SpelledFlags(fields[1], rules_.notation);
            if (!flags.empty()) rules_.special.*special.flag = flags[0];
        }
        const std::string name = ToUtf8(fields[0]);
        if (std::ranges::find(kNotExpressed, name) != kNotExpressed.end())
            rules_.not_expressed.insert(name);
        if (name == "SET" || name == "TRY") found_any_ = true;
    }

    AffixRules& rules_;
    std::unordered_map<AffixFlag, bool> prefix_headers_;
    std::unordered_map<AffixFlag, bool> suffix_headers_;
    bool seen_alias_count_ = false;
    bool found_any_ = false;
};

/// The name of the encoding that a file says it is in, or nothing.
std::optional<std::string> EncodingOf(std::string_view bytes) {
    std::optional<std::string> name;
    ForEachLine(bytes, [&](std::string_view line) {
        if (line.starts_with("\xEF\xBB\xBF")) line.remove_prefix(3);
        if (name || !line.starts_with("SET")) return;
        const std::wstring text = FromUtf8(line);
        const std::vector<std::wstring_view> fields = Fields(text);
        if (fields.size() > 1 && fields[0] == L"SET") name = ToUtf8(fields[1]);
    });
    return name;
}

}  // namespace

std::vector<std::wstring_view> Fields(std::wstring_view line) {
    std::vector<std::wstring_view> fields;
    std::size_t at = 0;
    while (true) {
        while (at < line.size() && IsBlank(line[at])) ++at;
        if (at == line.size()) return fields;
        const std::size_t start = at;
        while (at < line.size() && !IsBlank(line[at])) ++at;
        fields.push_back(line.substr(start, at - start));
    }
}

AffixCondition AffixCondition::Parse(std::wstring_view text) {
    AffixCondition condition;
    if (text == L".") return condition;
    for (std::size_t i = 0; i < text.size(); ++i) {
        Place place;
        if (text[i] == L'[') {
            const std::size_t close = std::min(text.find(L']', i + 1), text.size());
            place.letters = text.substr(i + 1, close - i - 1);
            place.excludes = place.letters.starts_with(L'^');
            if (place.excludes) place.letters.erase(0, 1);
            i = close;
        } else if (text[i] == L'.') {
            place.excludes = true;
        } else {
            place.letters = text[i];
        }
        condition.places_.push_back(std::move(place));
    }
    return condition;
}

bool AffixCondition::HoldsAtEnd(std::wstring_view stem) const {
    return stem.size() >= places_.size() && HoldsAtStart(stem.substr(stem.size() - places_.size()));
}

bool AffixCondition::HoldsAtStart(std::wstring_view stem) const {
    if (stem.size() < places_.size()) return false;
    for (std::size_t i = 0; i < places_.size(); ++i) {
        if (!places_[i].Accepts(stem[i])) return false;
    }
    return true;
}

bool Affix::Has(AffixFlag flag) const {
    return flag != 0 && std::ranges::find(further, flag) != further.end();
}

std::wstring AffixRules::Spelled(std::wstring form) const {
    for (const auto& [own, in_texts] : spelling) {
        for (std::size_t at = form.find(own); at != std::wstring::npos;
             at = form.find(own, at + in_texts.size()))
            form.replace(at, own.size(), in_texts);
    }
    return form;
}

std::vector<AffixFlag> AffixRules::Flags(std::wstring_view text) const {
    if (aliases.empty()) return SpelledFlags(text, notation);
    const AffixFlag number = NumberOf(text);
    return number >= 1 && number <= aliases.size() ? aliases[number - 1] : std::vector<AffixFlag>();
}

std::wstring AffixRules::Decode(std::string_view line) const {
    return page == nullptr ? FromUtf8(line) : page->Decode(line);
}

Result<AffixRules> ReadAffixRules(const Path& path) {
    const Result<std::string> bytes = ReadWholeFile(path);
    if (!bytes) return tl::unexpected(bytes.error());
    AffixRules rules;
    const std::string encoding = EncodingOf(*bytes).value_or("ISO8859-1");
    if (encoding != "UTF-8") {
        const auto* const known = std::ranges::find(kEncodings, std::string_view(encoding),
                                                    &std::pair<std::string_view, int>::first);
        if (known == kEncodings.end()) {
            return tl::unexpected(
                Error{L"its encoding, " + FromUtf8(encoding) + L", is not known here", path});
        }
        rules.page = &AnsiCodePage::Get(known->second);
    }
    Reader reader(rules);
    bool at_start = true;
    ForEachLine(*bytes, [&](std::string_view line) {
        std::wstring text = rules.Decode(line);
        if (std::exchange(at_start, false) && text.starts_with(kByteOrderMark)) text.erase(0, 1);
        reader.Take(text);
    });
    if (!reader.FoundAny())
        return tl::unexpected(Error{L"it does not look like a file of affix rules", path});
    return rules;
}

}  // namespace wordhawk
