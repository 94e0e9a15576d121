#include "dict/affix_expansion.h"

#include "dict/lines.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace wordhawk {
namespace {

/// A stem with its flags.
struct Stem {
    std::wstring text;
    std::vector<AffixFlag> flags;

    bool Has(AffixFlag flag) const {
        return flag != 0 && std::ranges::find(flags, flag) != flags.end();
    }
};

/// The stem of a line of a `.dic` file: up to a tab or a blank with a field such as "po:noun"
/// behind it, flags behind an unescaped slash.
Stem ReadStem(std::wstring_view line, const AffixRules& rules) {
    if (const std::size_t tab = line.find(L'\t'); tab != std::wstring_view::npos)
        line = line.substr(0, tab);
    for (std::size_t blank = line.find(L' '); blank != std::wstring_view::npos;
         blank = line.find(L' ', blank + 1)) {
        const std::size_t colon = blank + 3;
        if (colon < line.size() && line[colon] == L':') {
            line = line.substr(0, blank);
            break;
        }
    }
    Stem stem;
    std::size_t i = 0;
    for (; i < line.size() && (line[i] != L'/' || i == 0); ++i) {
        if (line[i] == L'\\' && i + 1 < line.size() && line[i + 1] == L'/') ++i;
        stem.text += line[i];
    }
    if (i < line.size()) stem.flags = rules.Flags(Trim(line.substr(i + 1)));
    stem.text = Trim(stem.text);
    return stem;
}

using UseForm = std::function<void(std::wstring_view, unsigned)>;

/// Spells out the words of one dictionary.
class Expander {
  public:
    Expander(const AffixRules& rules, const UseForm& use)
        : rules_(rules), special_(rules.special), use_(use) {}

    void Expand(const Stem& stem) {
        const unsigned roles = RolesOf(stem, nullptr, nullptr);
        Use(stem.text, roles == 0 ? 0 : roles | kWordStem);
        WithSuffixes(stem, nullptr);
        for (const AffixFlag flag : stem.flags) {
            const auto family = rules_.prefixes.find(flag);
            if (family == rules_.prefixes.end()) continue;
            for (const Affix& prefix : family->second) WithPrefix(stem, prefix);
        }
    }

  private:
    void WithPrefix(const Stem& stem, const Affix& prefix) {
        if (!Joins(prefix, stem.text, true)) return;
        Use(Prefixed(prefix, stem.text), RolesOf(stem, &prefix, nullptr));
        if (prefix.crosses) WithSuffixes(stem, &prefix);
    }

    /// Suffixed forms of `stem`, with a prefix before them when there is one.
    void WithSuffixes(const Stem& stem, const Affix* prefix) {
        for (const AffixFlag flag : stem.flags) WithSuffixesOf(flag, stem, prefix);
        if (prefix == nullptr) return;
        for (const AffixFlag flag : prefix->further) WithSuffixesOf(flag, stem, prefix);
    }

    void WithSuffixesOf(AffixFlag flag, const Stem& stem, const Affix* prefix) {
        const auto family = rules_.suffixes.find(flag);
        if (family == rules_.suffixes.end()) return;
        for (const Affix& suffix : family->second) {
            if (!Joins(suffix, stem.text, false) || (prefix != nullptr && !suffix.crosses))
                continue;
            const std::wstring form = Suffixed(suffix, stem.text);
            Use(prefix, form, RolesOf(stem, prefix, &suffix));
            for (const AffixFlag further : suffix.further)
                WithFurther(further, form, stem, suffix, prefix);
        }
    }

    /// What a first suffix lets come: a second one, or a prefix.
    void WithFurther(AffixFlag flag, const std::wstring& form, const Stem& stem, const Affix& first,
                     const Affix* prefix) {
        if (const auto family = rules_.suffixes.find(flag); family != rules_.suffixes.end()) {
            for (const Affix& second : family->second) {
                if (!Joins(second, form, false) || (prefix != nullptr && !second.crosses)) continue;
                Use(prefix, Suffixed(second, form), RolesOf(stem, prefix, &second));
            }
        }
        const auto family = rules_.prefixes.find(flag);
        if (prefix != nullptr || !first.crosses || family == rules_.prefixes.end()) return;
        for (const Affix& late : family->second) {
            if (late.crosses && Joins(late, form, true))
                Use(Prefixed(late, form), RolesOf(stem, &late, &first));
        }
    }

    bool Joins(const Affix& affix, std::wstring_view stem, bool at_start) const {
        if (stem.size() < affix.strip.size() ||
            (stem.size() == affix.strip.size() && !rules_.full_strip))
            return false;
        if (at_start) return stem.starts_with(affix.strip) && affix.condition.HoldsAtStart(stem);
        return stem.ends_with(affix.strip) && affix.condition.HoldsAtEnd(stem);
    }

    static std::wstring Prefixed(const Affix& prefix, const std::wstring& form) {
        return prefix.add + form.substr(prefix.strip.size());
    }

    static std::wstring Suffixed(const Affix& suffix, const std::wstring& form) {
        return form.substr(0, form.size() - suffix.strip.size()) + suffix.add;
    }

    bool EitherHas(const Affix* prefix, const Affix* suffix, AffixFlag flag) const {
        return (prefix != nullptr && prefix->Has(flag)) || (suffix != nullptr && suffix->Has(flag));
    }

    /// What the stem with these affixes (nullptr: none) may be.
    unsigned RolesOf(const Stem& stem, const Affix* prefix, const Affix* suffix) const {
        const bool half = prefix != nullptr && prefix->Has(special_.circumfix);
        const bool other_half = suffix != nullptr && suffix->Has(special_.circumfix);
        if (half != other_half && prefix != nullptr) return 0;
        // A suffix may complete a stem or a prefix that cannot stand by itself.
        const bool incomplete =
            suffix != nullptr   ? suffix->Has(special_.need_affix)
            : prefix != nullptr ? prefix->Has(special_.need_affix) || stem.Has(special_.need_affix)
                                : stem.Has(special_.need_affix);
        if (incomplete) return 0;

        unsigned roles = 0;
        const bool part_only = stem.Has(special_.only_in_compound) ||
                               EitherHas(prefix, suffix, special_.only_in_compound);
        if (!part_only && half == other_half) roles |= kWordAlone;
        const auto marked = [&](AffixFlag flag) {
            return stem.Has(special_.compound) || stem.Has(flag) || EitherHas(prefix, suffix, flag);
        };
        const auto permitted = [&](const Affix* affix) {
            return affix == nullptr || affix->Has(special_.compound_permit);
        };
        // Affixes stand at the outer ends of a compound, unless they may stand inside as well.
        if (permitted(suffix) && marked(special_.compound_begin)) roles |= kCompoundBegin;
        if (permitted(suffix) && permitted(prefix) && marked(special_.compound_middle))
            roles |= kCompoundMiddle;
        if (permitted(prefix) && marked(special_.compound_end)) roles |= kCompoundEnd;
        return roles;
    }

    void Use(const Affix* prefix, const std::wstring& form, unsigned roles) {
        if (prefix == nullptr) return Use(form, roles);
        // The prefix was held against the stem; a suffix seldom reaches as far as its start.
        if (form.starts_with(prefix->strip)) Use(Prefixed(*prefix, form), roles);
    }

    void Use(const std::wstring& form, unsigned roles) {
        if (roles != 0 && !form.empty()) use_(form, roles);
    }

    const AffixRules& rules_;
    const SpecialFlags& special_;
    const UseForm& use_;
};

}  // namespace

Result<ExpansionReport> ExpandHunspellDictionary(
    const Path& stems, const std::function<void(std::wstring_view, unsigned)>& use) {
    const Result<AffixRules> rules = ReadAffixRules(Path(stems).replace_extension(".aff"));
    if (!rules) return tl::unexpected(rules.error());
    const Result<std::string> bytes = ReadWholeFile(stems);
    if (!bytes) return tl::unexpected(bytes.error());

    std::vector<Stem> found;
    std::unordered_set<std::wstring> forbidden;
    bool at_start = true;
    ForEachLine(*bytes, [&](std::string_view line) {
        if (std::exchange(at_start, false)) return;  // the number of stems
        if (line.starts_with('\t')) return;          // a comment
        Stem stem = ReadStem(rules->Decode(line), *rules);
        if (stem.text.empty()) return;
        if (stem.Has(rules->special.forbidden)) {
            forbidden.insert(std::move(stem.text));
        } else {
            found.push_back(std::move(stem));
        }
    });

    ExpansionReport report;
    report.not_expressed = rules->not_expressed;
    const UseForm allowed = [&](std::wstring_view form, unsigned roles) {
        if (!forbidden.empty() && forbidden.contains(std::wstring(form))) return;
        if (rules->spelling.empty()) {
            use(form, roles);
        } else {
            use(rules->Spelled(std::wstring(form)), roles);
        }
    };
    Expander expander(*rules, allowed);
    for (const Stem& stem : found) {
        ++report.stems;
        expander.Expand(stem);
    }
    return report;
}

}  // namespace wordhawk
